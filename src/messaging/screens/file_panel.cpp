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
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// While somebody types a path, not every letter sets the disk going.
constexpr int lookDelay = 250;  // ms

// A longer name of a single word would push the window over the edge of the screen.
constexpr int longestName = 48;  // average characters

QString factsText(FileFacts facts, const QFontMetrics& metrics) {
  const int width = longestName * metrics.averageCharWidth();
  facts.name = metrics.elidedText(facts.name, Qt::ElideMiddle, width);
  return facts.text();
}

// What a file manager copies may come as an address, "file:///home/ann/a%20b.pdf", and with a line's end.
QString pathOf(const QString& entered) {
  const QUrl url(entered.trimmed());
  return url.isLocalFile() ? QDir::toNativeSeparators(url.toLocalFile()) : entered;
}

}  // namespace

FilePanel::FilePanel(const QString& label, Settings& settings, QWidget* parent)
    : QWidget(parent), settings_(settings) {
  setObjectName(u"filePanel"_s);
  path_ = new QLineEdit(this);
  path_->setObjectName(u"filePath"_s);
  path_->setAcceptDrops(false);  // the page takes files, everywhere
  connect(path_, &QLineEdit::textChanged, this, &FilePanel::pathChanged);
  auto* browseButton = new PictureButton(u"&Browse..."_s, this);
  browseButton->setObjectName(u"browseButton"_s);
  connect(browseButton, &PictureButton::clicked, this, &FilePanel::browse);
  facts_ = new QLabel(this);
  facts_->setObjectName(u"fileFacts"_s);
  facts_->setTextFormat(Qt::PlainText);
  facts_->setWordWrap(true);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins({});
  grid->setVerticalSpacing(4);
  grid->addWidget(labelFor(path_, label), 0, 0);
  grid->addWidget(path_, 0, 1);
  grid->addWidget(browseButton, 0, 2);
  grid->addWidget(facts_, 1, 1, 1, 2);
  grid->setColumnStretch(1, 1);
  untilLook_.setSingleShot(true);
  connect(&untilLook_, &QTimer::timeout, this, &FilePanel::look);
  connect(&newestLook_, &QFutureWatcherBase::finished, this, &FilePanel::takeLook);
  display({});
}

QWidget* FilePanel::pathEdit() const {
  return path_;
}

QString FilePanel::path() const {
  return pathOf(path_->text());
}

void FilePanel::clear() {
  path_->clear();
}

void FilePanel::browse() {
  QFileDialog dialog(this, u"Open"_s, startFolder());
  dialog.setFileMode(QFileDialog::ExistingFile);
  // The details in the last brackets are what counts: "*.*" would leave out names without a dot.
  dialog.setNameFilter(u"All Files (*.*) (*)"_s);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  if (dialog.exec() == QDialog::Accepted) choose(dialog.selectedFiles().constFirst());
}

void FilePanel::choose(const QString& path) {
  settings_.setFileFolder(QDir::toNativeSeparators(QFileInfo(path).absolutePath()));
  path_->setText(QDir::toNativeSeparators(path));
  untilLook_.stop();
  look();
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
  newestLook_.setFuture({});
  display({});
  untilLook_.start(lookDelay);
}

void FilePanel::look() {
  const QString path = this->path();
  if (path.isEmpty()) return display({});
  const auto promise = std::make_shared<QPromise<FileLook>>();
  newestLook_.setFuture(promise->future());
  QThreadPool::globalInstance()->start([promise, path, wishes = wishes_] {
    promise->start();
    promise->addResult(lookAtFile(path, wishes));
    promise->finish();
  });
}

void FilePanel::takeLook() {
  // A future that was let go of ends too, but it has seen nothing.
  if (newestLook_.future().resultCount() > 0) display(newestLook_.result());
}

void FilePanel::display(const FileLook& look) {
  facts_->setText(lineFor(look));
  path_->setAccessibleDescription(facts_->text());
  Q_EMIT looked(look);
}

QString FilePanel::lineFor(const FileLook& look) const {
  if (path().isEmpty())
    return u"Choose a file of at most %1, or drop one here."_s.arg(dataSizeText(wishes_.limit));
  // A blank keeps the line's place, so that nothing jumps.
  return look.facts.name.isEmpty() ? u" "_s : factsText(look.facts, facts_->fontMetrics());
}

}  // namespace parlexo
