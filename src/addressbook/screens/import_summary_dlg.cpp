// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/import_summary_dlg.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include "base/csv_writer.h"
#include "base/message_texts.h"
#include "base/notifier.h"
#include "ui/export_button.h"
#include "ui/list_style.h"
#include "ui/look.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

CImportSummaryDlg::CImportSummaryDlg(const Sheet& sheet, const ImportPlan& plan, const ImportOutcome& outcome,
                                     Notifier& notifier, QWidget* parent)
    : GradientDialog(parent), sheet_(sheet), plan_(plan), outcome_(outcome), notifier_(notifier) {
  setObjectName(u"importSummaryDialog"_s);
  setWindowTitle(tr("Parlexo(TM) : Import Contacts"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::dialogMargins);
  layout->setSpacing(look::rowSpacing);
  auto* summary = new QLabel(summaryText(outcome), this);
  summary->setObjectName(u"summary"_s);
  summary->setMinimumWidth(dialogUnits(*this, 170, 0).width());  // fits the window title
  layout->addWidget(summary);
  if (!outcome.refused.empty() || !outcome.remarks.empty()) addRows(*layout);
  addButtons(*layout);
}

QStringList CImportSummaryDlg::rowTexts() const {
  QStringList texts;
  for (const ImportOutcome::RowNote& refused : outcome_.refused)
    texts << tr("Row %1: %2").arg(refused.row + 1).arg(refused.text);
  for (const ImportOutcome::RowNote& remark : outcome_.remarks)
    texts << tr("Row %1 was imported partially: %2").arg(remark.row + 1).arg(remark.text);
  return texts;
}

void CImportSummaryDlg::addRows(QVBoxLayout& layout) {
  constexpr qsizetype maxRows = 1000;
  const QString caption = outcome_.remarks.empty()   ? tr("&Refused rows:")
                          : outcome_.refused.empty() ? tr("&Rows imported partially:")
                                                     : tr("&Rows refused or imported partially:");
  auto* list = new QListWidget(this);
  list->setObjectName(u"refusedList"_s);
  list->setAccessibleName(QString(caption).remove(u'&'));
  styleList(*list);
  const QStringList texts = rowTexts();
  list->addItems(texts.mid(0, maxRows));
  if (texts.size() > maxRows) list->addItem(tr("and %L1 more").arg(texts.size() - maxRows));
  list->setMinimumSize(dialogUnits(*this, 250, 80));
  auto* label = new QLabel(caption, this);
  label->setBuddy(list);
  layout.addWidget(label);
  layout.addWidget(list, 1);
}

void CImportSummaryDlg::addButtons(QVBoxLayout& layout) {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  if (!outcome_.refused.empty()) {
    auto* save = new PictureButton(tr("&Save refused rows..."), this);
    save->setObjectName(u"saveRefusedButton"_s);
    connect(save, &PictureButton::clicked, this, &CImportSummaryDlg::saveRefused);
    row->addWidget(save);
  }
  auto* ok = new PictureButton(text(TextId::ButtonOk), this);
  ok->setObjectName(u"okButton"_s);
  ok->setDefault(true);
  connect(ok, &PictureButton::clicked, this, &QDialog::accept);
  row->addWidget(ok);
  layout.addLayout(row);
  ok->setFocus(Qt::OtherFocusReason);
}

void CImportSummaryDlg::saveRefused() {
  const QString path = askForCsvPath(this, tr("refused rows"));
  if (!path.isEmpty()) saveRefusedTo(path);
}

bool CImportSummaryDlg::saveRefusedTo(const QString& path) {
  CsvWriter file(CsvCells::AsTheyAre);
  writeRefusedRows(sheet_, plan_, outcome_, file);
  const QString problem = file.save(path);
  if (!problem.isEmpty()) notifier_.error(problem);
  return problem.isEmpty();
}

}  // namespace parlexo
