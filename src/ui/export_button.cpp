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
  QFileDialog dialog(parent, u"Export"_s,
                     QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters({u"CSV files (*.csv)"_s, u"All files (*)"_s});
  dialog.setDefaultSuffix(u"csv"_s);
  dialog.selectFile(suggestedName + u".csv"_s);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

ExportButton::ExportButton(const RecordTable& table, Notifier& notifier, QWidget* parent)
    : PictureButton(u"E&xport..."_s, parent), table_(table), notifier_(notifier) {
  setObjectName(u"exportButton"_s);
  const auto followRows = [this] { setEnabled(table_.model()->rowCount() > 0); };
  connect(table.model(), &QAbstractItemModel::modelReset, this, followRows);
  followRows();
  connect(this, &PictureButton::clicked, this, &ExportButton::exportRows);
}

void ExportButton::exportRows() {
  const QString path = askForPath_(this, suggestedName_);
  if (path.isEmpty()) return;
  const QString problem = table_.toCsv().save(path);
  if (!problem.isEmpty()) notifier_.error(problem);
}

}  // namespace parlexo
