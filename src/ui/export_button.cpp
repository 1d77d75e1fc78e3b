#include "ui/export_button.h"

#include <QAbstractItemModel>
#include <QFileDialog>
#include <QStandardPaths>

#include "base/notifier.h"
#include "ui/record_table.h"

namespace parlexo {

QString askForCsvPath(QWidget* parent, const QString& suggestedName) {
  QFileDialog dialog(parent, QStringLiteral("Export"),
                     QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters({QStringLiteral("CSV files (*.csv)"), QStringLiteral("All files (*)")});
  dialog.setDefaultSuffix(QStringLiteral("csv"));
  dialog.selectFile(suggestedName + QStringLiteral(".csv"));
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

ExportButton::ExportButton(const RecordTable& table, Notifier& notifier, QWidget* parent)
    : PictureButton(QStringLiteral("E&xport..."), parent), table_(table), notifier_(notifier) {
  setObjectName(QStringLiteral("exportButton"));
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
