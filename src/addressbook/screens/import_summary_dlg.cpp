#include "addressbook/screens/import_summary_dlg.h"

#include <algorithm>

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

CImportSummaryDlg::CImportSummaryDlg(const Sheet& sheet, const ImportPlan& plan, const ImportOutcome& outcome,
                                     Notifier& notifier, QWidget* parent)
    : GradientDialog(parent), sheet_(sheet), plan_(plan), outcome_(outcome), notifier_(notifier) {
  setObjectName(QStringLiteral("importSummaryDialog"));
  setWindowTitle(QStringLiteral("Parlexo(TM) : Import Contacts"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 14, 16, 14);
  layout->setSpacing(10);
  auto* summary = new QLabel(summaryText(outcome), this);
  summary->setObjectName(QStringLiteral("summary"));
  summary->setMinimumWidth(dialogUnits(*this, 170, 0).width());  // the title is read whole
  layout->addWidget(summary);
  if (!outcome.refused.empty()) addRefusedRows(*layout);
  addButtons(*layout);
}

void CImportSummaryDlg::addRefusedRows(QVBoxLayout& layout) {
  constexpr std::size_t mostShown = 1000;
  auto* list = new QListWidget(this);
  list->setObjectName(QStringLiteral("refusedList"));
  list->setAccessibleName(QStringLiteral("Refused rows:"));
  styleList(*list);
  const std::size_t shown = std::min(outcome_.refused.size(), mostShown);
  for (std::size_t i = 0; i < shown; ++i)
    list->addItem(
        QStringLiteral("Row %1: %2").arg(outcome_.refused[i].row + 1).arg(outcome_.refused[i].reason));
  if (shown < outcome_.refused.size())
    list->addItem(QStringLiteral("and %L1 more").arg(outcome_.refused.size() - shown));
  list->setMinimumSize(dialogUnits(*this, 250, 80));
  auto* label = new QLabel(QStringLiteral("&Refused rows:"), this);
  label->setBuddy(list);
  layout.addWidget(label);
  layout.addWidget(list, 1);
}

void CImportSummaryDlg::addButtons(QVBoxLayout& layout) {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  if (!outcome_.refused.empty()) {
    auto* save = new PictureButton(QStringLiteral("&Save refused rows..."), this);
    save->setObjectName(QStringLiteral("saveRefusedButton"));
    connect(save, &PictureButton::clicked, this, &CImportSummaryDlg::saveRefused);
    row->addWidget(save);
  }
  auto* ok = new PictureButton(text(TextId::ButtonOk), this);
  ok->setObjectName(QStringLiteral("okButton"));
  ok->setDefault(true);
  connect(ok, &PictureButton::clicked, this, &QDialog::accept);
  row->addWidget(ok);
  layout.addLayout(row);
  ok->setFocus(Qt::OtherFocusReason);
}

void CImportSummaryDlg::saveRefused() {
  const QString path = askForCsvPath(this, QStringLiteral("refused rows"));
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
