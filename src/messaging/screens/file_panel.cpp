// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/file_panel.h"

#include <memory>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetrics>
#include <QFuture>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPromise>
#include <QThreadPool>
#include <QUrl>

#include "base/data_size.h"
#include "base/settings.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// Delays reading while the user types a path.
constexpr int updateDelay = 250;  // ms

// A longer name can't be wrapped and would make the window too wide for the screen.
constexpr int maxNameWidth = 48;  // average characters

QString factsText(FileFacts facts, const QFontMetrics& metrics) {
  const int width = maxNameWidth * metrics.averageCharWidth();
  facts.name = metrics.elidedText(facts.name, Qt::ElideMiddle, width);
  return facts.text();
}

// File managers copy a file as a URL, "file:///home/ann/a%20b.pdf", possibly with a line break.
QString toLocalPath(const QString& entered) {
  const QUrl url(entered.trimmed());
  return url.isLocalFile() ? QDir::toNativeSeparators(url.toLocalFile()) : entered;
}

}  // namespace

FilePanel::FilePanel(const QString& label, Settings& settings, QWidget* parent)
    : QWidget(parent), settings_(settings) {
  setObjectName(u"filePanel"_s);
  path_ = new QLineEdit(this);
  path_->setObjectName(u"filePath"_s);
  path_->setAcceptDrops(false);  // the page accepts dropped files
  connect(path_, &QLineEdit::textChanged, this, &FilePanel::pathChanged);
  auto* browseButton = new PictureButton(tr("&Browse..."), this);
  browseButton->setObjectName(u"browseButton"_s);
  connect(browseButton, &PictureButton::clicked, this, &FilePanel::browse);
  facts_ = new QLabel(this);
  facts_->setObjectName(u"fileFacts"_s);
  facts_->setTextFormat(Qt::PlainText);
  facts_->setWordWrap(true);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins({});
  grid->setVerticalSpacing(look::captionSpacing);
  grid->addWidget(labelFor(path_, label), 0, 0);
  grid->addWidget(path_, 0, 1);
  grid->addWidget(browseButton, 0, 2);
  grid->addWidget(facts_, 1, 1, 1, 2);
  grid->setColumnStretch(1, 1);
  updateTimer_.setSingleShot(true);
  connect(&updateTimer_, &QTimer::timeout, this, &FilePanel::updateDetails);
  connect(&watcher_, &QFutureWatcherBase::finished, this, &FilePanel::showResult);
  display({});
}

QWidget* FilePanel::pathEdit() const {
  return path_;
}

QString FilePanel::path() const {
  return toLocalPath(path_->text());
}

void FilePanel::clear() {
  path_->clear();
}

void FilePanel::browse() {
  QFileDialog dialog(this, tr("Open"), startFolder());
  dialog.setFileMode(QFileDialog::ExistingFile);
  // The last parentheses contain the effective filter: "*.*" would exclude names without a dot.
  dialog.setNameFilter(tr("All Files (*.*) (*)"));
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  if (dialog.exec() == QDialog::Accepted) choose(dialog.selectedFiles().constFirst());
}

void FilePanel::choose(const QString& path) {
  settings_.setFileFolder(QDir::toNativeSeparators(QFileInfo(path).absolutePath()));
  path_->setText(QDir::toNativeSeparators(path));
  updateTimer_.stop();
  updateDetails();
}

QString FilePanel::draggedFile(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  const QString path = urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
  return QFileInfo(path).isFile() ? path : QString();
}

QString FilePanel::startFolder() const {
  const QString last = settings_.fileFolder();
  return !last.isEmpty() && QFileInfo(last).isDir() ? last : QDir::homePath();
}

void FilePanel::pathChanged() {
  watcher_.setFuture({});
  display({});
  updateTimer_.start(updateDelay);
}

void FilePanel::updateDetails() {
  const QString path = this->path();
  if (path.isEmpty()) return display({});
  const auto promise = std::make_shared<QPromise<FileDetails>>();
  watcher_.setFuture(promise->future());
  QThreadPool::globalInstance()->start([promise, path, request = request_] {
    promise->start();
    promise->addResult(readFileDetails(path, request));
    promise->finish();
  });
}

void FilePanel::showResult() {
  // An empty future finishes as well, but has no result.
  if (watcher_.future().resultCount() > 0) display(watcher_.result());
}

void FilePanel::display(const FileDetails& details) {
  facts_->setText(detailsText(details));
  path_->setAccessibleDescription(facts_->text());
  Q_EMIT detailsChanged(details);
}

QString FilePanel::detailsText(const FileDetails& details) const {
  if (path().isEmpty())
    return tr("Choose a file of at most %1, or drop one here.").arg(dataSizeText(request_.limit));
  // A space preserves the height of the line, so the layout does not jump.
  return details.facts.name.isEmpty() ? u" "_s : factsText(details.facts, facts_->fontMetrics());
}

}  // namespace parlexo
