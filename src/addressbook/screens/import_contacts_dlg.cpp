// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/import_contacts_dlg.h"

#include <utility>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QSignalBlocker>
#include <QStandardPaths>
#include <QTableWidget>
#include <QVBoxLayout>

#include "addressbook/core/contact_import.h"
#include "addressbook/core/contact_selection.h"
#include "addressbook/screens/import_preview.h"
#include "addressbook/screens/import_question_dlg.h"
#include "addressbook/screens/import_summary_dlg.h"
#include "base/message_texts.h"
#include "base/notifier.h"
#include "contacts/phone_number.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 repaintInterval = 30;  // milliseconds

QString delimiterName(QChar delimiter) {
  switch (delimiter.unicode()) {
    case u',':
      return CImportContactsDlg::tr("Comma");
    case u';':
      return CImportContactsDlg::tr("Semicolon");
    case u'\t':
      return CImportContactsDlg::tr("Tab");
    default:
      return CImportContactsDlg::tr("Vertical bar");
  }
}

QCheckBox* checkBox(const QString& text, const QString& objectName, QWidget* parent) {
  auto* box = new QCheckBox(text, parent);
  box->setObjectName(objectName);
  return box;
}

}  // namespace

/// Connects a running import to the dialog.
class CImportContactsDlg::ImportDialogUser final : public ImportUser {
 public:
  explicit ImportDialogUser(CImportContactsDlg& dialog) : dialog_(dialog) { sinceRepaint_.start(); }

  [[nodiscard]] bool reportProgress(int done, int total) override {
    if (done > 0 && sinceRepaint_.elapsed() < repaintInterval) return !dialog_.isCancelled_;
    sinceRepaint_.restart();
    return dialog_.showProgress(done, total);
  }
  [[nodiscard]] Answer contactExists(const QString& name) override {
    CImportQuestionDlg question(name, &dialog_);
    question.exec();
    return question.answer();
  }

 private:
  CImportContactsDlg& dialog_;
  QElapsedTimer sinceRepaint_;
};

CImportContactsDlg::CImportContactsDlg(const AddressBookServices& services, const QString& selectedGroup,
                                       QWidget* parent)
    : GradientDialog(parent),
      services_(services),
      group_(selectedGroup),
      source_(services.runner, services.progress) {
  setObjectName(u"importContactsDialog"_s);
  setWindowTitle(tr("Parlexo(TM) : Import Contacts"));
  createFileControls();
  createPlanControls();
  createBottom();
  createLayout(selectedGroup);
  showFormat();
  showProblem();
  browse_->setFocus(Qt::OtherFocusReason);
}

void CImportContactsDlg::createFileControls() {
  file_ = readOnlyField(u"fileField"_s, this);
  file_->setPlaceholderText(tr("A .csv, .txt, .tsv, .xls, .xlsx or .ods file"));
  browse_ = new PictureButton(tr("&Browse..."), this);
  browse_->setObjectName(u"browseButton"_s);
  connect(browse_, &PictureButton::clicked, this, &CImportContactsDlg::browse);

  workbookRow_ = new QWidget(this);
  auto* workbook = new QHBoxLayout(workbookRow_);
  workbook->setContentsMargins({});
  sheet_ = createChoice(u"sheetChoice"_s, tr("S&heet:"), *workbook);
  textRow_ = new QWidget(this);
  auto* text = new QHBoxLayout(textRow_);
  text->setContentsMargins({});
  encoding_ = createChoice(u"encodingChoice"_s, tr("&Encoding:"), *text);
  delimiter_ = createChoice(u"delimiterChoice"_s, tr("&Delimiter:"), *text);

  encoding_->addItem(tr("UTF-8"), static_cast<int>(TextEncoding::Utf8));
  encoding_->addItem(tr("UTF-16, little-endian"), static_cast<int>(TextEncoding::Utf16LittleEndian));
  encoding_->addItem(tr("UTF-16, big-endian"), static_cast<int>(TextEncoding::Utf16BigEndian));
  encoding_->addItem(tr("System code page"), static_cast<int>(TextEncoding::CodePage));
  for (const QChar known : knownDelimiters) delimiter_->addItem(delimiterName(known), known);
  for (QComboBox* choice : {encoding_, delimiter_})
    connect(choice, &QComboBox::currentIndexChanged, this, &CImportContactsDlg::changeFormat);
  connect(sheet_, &QComboBox::currentIndexChanged, this, [this](int number) {
    source_.chooseSheet(number);
    suggestPlan();
  });
}

QComboBox* CImportContactsDlg::createChoice(const QString& objectName, const QString& caption,
                                            QBoxLayout& row) {
  auto* choice = new QComboBox(row.parentWidget());
  choice->setObjectName(objectName);
  row.addWidget(labelFor(choice, caption));
  row.addWidget(choice);
  row.addSpacing(look::columnSpacing);
  return choice;
}

void CImportContactsDlg::createPlanControls() {
  headings_ = checkBox(QString(), u"headingsBox"_s, this);
  showHeadingRow();
  connect(headings_, &QCheckBox::toggled, this, &CImportContactsDlg::showPreview);
  preview_ = new ImportPreview(this);
  connect(preview_, &ImportPreview::columnsChanged, this, &CImportContactsDlg::validateRows);
  problem_ = wrappedLabel(QString(), this);
  problem_->setObjectName(u"problemLine"_s);
  problem_->setTextFormat(Qt::PlainText);

  countryCode_ = new QLineEdit(this);
  countryCode_->setObjectName(u"countryCode"_s);
  countryCode_->setPlaceholderText(u"+61"_s);
  countryCode_->setMaximumWidth(countryCode_->fontMetrics().horizontalAdvance(u"+0000000"_s) +
                                look::fieldPadding);
  connect(countryCode_, &QLineEdit::textChanged, this, &CImportContactsDlg::validateRows);
  supportsSms_ = checkBox(tr("Supports &SMS"), u"supportsSmsBox"_s, this);
  supportsSms_->setChecked(true);
  supportsMedia_ = checkBox(tr("Supports &Media (WAP and/or MMS)"), u"supportsMediaBox"_s, this);
}

void CImportContactsDlg::createBottom() {
  progressText_ = new QLabel(this);
  progressText_->setObjectName(u"progressText"_s);
  progressBar_ = new QProgressBar(this);
  progressBar_->setObjectName(u"progressBar"_s);
  progressBar_->setAccessibleName(tr("Importing contacts"));
  progressBar_->setTextVisible(false);
  progressBar_->hide();
  import_ = new PictureButton(tr("&Import"), this);
  import_->setObjectName(u"importButton"_s);
  import_->setDefault(true);
  connect(import_, &PictureButton::clicked, this, &CImportContactsDlg::startImport);
}

void CImportContactsDlg::createLayout(const QString& group) {
  auto* fileRow = new QHBoxLayout;
  fileRow->addWidget(labelFor(file_, tr("&File:")));
  fileRow->addWidget(file_, 1);
  fileRow->addWidget(browse_);
  auto* formatRow = new QHBoxLayout;
  formatRow->addWidget(workbookRow_);
  formatRow->addWidget(textRow_);
  formatRow->addWidget(headings_);
  formatRow->addStretch(1);
  auto* planRow = new QHBoxLayout;
  planRow->addWidget(labelFor(countryCode_, tr("&Country code for numbers without one:")));
  planRow->addWidget(countryCode_);
  planRow->addSpacing(look::columnSpacing);
  planRow->addWidget(supportsSms_);
  planRow->addWidget(supportsMedia_);
  planRow->addStretch(1);

  options_ = new QWidget(this);
  auto* options = new QVBoxLayout(options_);
  options->setContentsMargins({});
  options->addLayout(fileRow);
  options->addLayout(formatRow);
  options->addWidget(labelFor(preview_->table(), tr("First &rows and column assignment:")));
  options->addWidget(preview_, 1);
  options->addWidget(problem_);
  options->addLayout(planRow);
  if (!group.isEmpty()) {
    auto* groupNote =
        wrappedLabel(tr("The contacts will be added to the group \"%1\".").arg(shownName(group)), options_);
    groupNote->setTextFormat(Qt::PlainText);
    options->addWidget(groupNote);
  }
  auto* cancel = new PictureButton(tr("Cancel"), this);
  cancel->setObjectName(u"cancelButton"_s);
  connect(cancel, &PictureButton::clicked, this, &CImportContactsDlg::reject);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(progressText_);
  bottom->addWidget(progressBar_, 1);
  bottom->addStretch();
  bottom->addWidget(import_);
  bottom->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::dialogMargins);
  layout->setSpacing(look::rowSpacing);
  layout->addWidget(options_, 1);
  layout->addLayout(bottom);
}

void CImportContactsDlg::browse() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QString folder = !source_.path().isEmpty()      ? source_.path()
                         : QFileInfo::exists(documents) ? documents
                                                        : QDir::homePath();
  const QString path =
      QFileDialog::getOpenFileName(this, tr("Import Contacts"), folder,
                                   tr("Contacts (*.csv *.txt *.tsv *.xls *.xlsx *.ods);;All files (*)"));
  if (!path.isEmpty()) openFile(path);
}

void CImportContactsDlg::openFile(const QString& path) {
  source_.open(path);
  file_->setText(path);
  file_->setToolTip(path);
  const QSignalBlocker blocker(sheet_);
  sheet_->clear();
  sheet_->addItems(source_.sheetNames());
  showFormat();
  suggestPlan();
  if (import_->isEnabled()) import_->setFocus(Qt::OtherFocusReason);
}

void CImportContactsDlg::showFormat() {
  const QSignalBlocker encodingBlocker(encoding_);
  const QSignalBlocker delimiterBlocker(delimiter_);
  encoding_->setCurrentIndex(encoding_->findData(static_cast<int>(source_.format().encoding)));
  delimiter_->setCurrentIndex(delimiter_->findData(source_.format().delimiter));
  workbookRow_->setVisible(source_.isWorkbook());
  textRow_->setVisible(!source_.isWorkbook());
}

void CImportContactsDlg::changeFormat() {
  if (source_.path().isEmpty()) return;
  source_.setFormat(
      {static_cast<TextEncoding>(encoding_->currentData().toInt()), delimiter_->currentData().toChar()});
  suggestPlan();
}

void CImportContactsDlg::suggestPlan() {
  const QSignalBlocker blocker(headings_);
  const std::optional<int> row =
      source_.problem().isEmpty() ? findHeadingRow(source_.preview()) : std::nullopt;
  headings_->setChecked(row.has_value());
  headingRow_ = row.value_or(0);
  showHeadingRow();
  showPreview();
}

void CImportContactsDlg::showHeadingRow() {
  headings_->setText(headingRow_ == 0 ? tr("The first row contains column &names")
                                      : tr("Row %1 contains column &names").arg(headingRow_ + 1));
}

void CImportContactsDlg::showPreview() {
  ImportPlan suggested = plan();
  const Sheet emptySheet;
  const Sheet& sheet = source_.problem().isEmpty() ? source_.preview() : emptySheet;
  suggested.columns = suggestColumns(sheet, suggested.headingRow);
  preview_->show(sheet, suggested);
  preview_->setTabOrderAfter(headings_);
  showProblem();
}

void CImportContactsDlg::validateRows() {
  preview_->updateResults(source_.preview(), plan());
  showProblem();
}

void CImportContactsDlg::showProblem() {
  const bool isOpen = !source_.path().isEmpty() && source_.problem().isEmpty();
  QStringList problems =
      isOpen ? QStringList{source_.remark(), currentProblem()} : QStringList{source_.problem()};
  problems.removeAll(QString());
  QPalette palette = problem_->palette();
  palette.setColor(QPalette::WindowText, look::problemText);
  problem_->setPalette(palette);
  problem_->setText(problems.join(u'\n'));
  import_->setEnabled(isOpen);
}

ImportPlan CImportContactsDlg::plan() const {
  return {.columns = preview_->columns(),
          .headingRow = headings_->isChecked() ? std::optional(headingRow_) : std::nullopt,
          .countryCode = PhoneNumber::parseCallingCode(countryCode_->text()).value_or(QString()),
          .supportsSms = supportsSms_->isChecked(),
          .supportsMedia = supportsMedia_->isChecked(),
          .group = group_};
}

QString CImportContactsDlg::currentProblem() const {
  const std::optional<QString> code = PhoneNumber::parseCallingCode(countryCode_->text());
  if (!code) return tr("The country code must be a plus sign and one to four digits, for example +61.");
  if (!code->isEmpty() && !PhoneNumber::isCallingCodeInUse(*code))
    return tr("The country code %1 is not in use.").arg(*code);
  return planProblem(plan());
}

void CImportContactsDlg::startImport() {
  if (isImporting_ || !import_->isEnabled()) return;
  if (const QString problem = currentProblem(); !problem.isEmpty()) {
    services_.notifier.error(problem);
    return;
  }
  if (!source_.readAll()) {
    showPreview();
    services_.notifier.error(source_.problem());
    return;
  }
  const ImportPlan chosen = plan();
  setImporting(true);
  ImportDialogUser user(*this);
  const ImportOutcome outcome =
      importContacts(source_.preview(), chosen, services_.book, user, services_.notifier);
  setImporting(false);
  importedNames_ = outcome.names;
  CImportSummaryDlg(source_.preview(), chosen, outcome, services_.notifier, this).exec();
  accept();
}

void CImportContactsDlg::setImporting(bool importing) {
  isImporting_ = importing;
  isCancelled_ = false;
  options_->setEnabled(!importing);
  import_->setEnabled(!importing);
  progressBar_->setVisible(importing);
  progressText_->setText(QString());
}

bool CImportContactsDlg::showProgress(int done, int total) {
  progressText_->setText(importProgressText(done, total));
  progressBar_->setMaximum(total);
  progressBar_->setValue(done);
  QCoreApplication::processEvents();
  return !isCancelled_;
}

void CImportContactsDlg::reject() {
  if (isImporting_)
    isCancelled_ = true;
  else
    GradientDialog::reject();
}

}  // namespace parlexo
