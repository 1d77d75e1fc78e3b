// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/export_button.h"

#include <QAbstractItemModel>
#include <QFileDialog>
#include <QStandardPaths>

#include "base/notifier.h"
#include "ui/record_table.h"

namespace parlexo {

using namespace Qt::StringLiterals;

QString askForCsvPath(QWidget* parent, const QString& suggestedName) {
  QFileDialog dialog(parent, ExportButton::tr("Export"),
                     QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters({ExportButton::tr("CSV files (*.csv)"), ExportButton::tr("All files (*)")});
  dialog.setDefaultSuffix(u"csv"_s);
  dialog.selectFile(suggestedName + u".csv"_s);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

ExportButton::ExportButton(const RecordTable& table, Notifier& notifier, QWidget* parent)
    : PictureButton(tr("E&xport..."), parent), table_(table), notifier_(notifier) {
  setObjectName(u"exportButton"_s);
  const auto updateEnabled = [this] { setEnabled(table_.model()->rowCount() > 0); };
  connect(table.model(), &QAbstractItemModel::modelReset, this, updateEnabled);
  updateEnabled();
  connect(this, &PictureButton::clicked, this, &ExportButton::exportRows);
}

void ExportButton::exportRows() {
  const QString path = askForPath_(this, suggestedName_);
  if (path.isEmpty()) return;
  const QString problem = table_.toCsv().save(path);
  if (!problem.isEmpty()) notifier_.error(problem);
}

}  // namespace parlexo
