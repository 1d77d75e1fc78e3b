// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QString>

#include "ui/picture_button.h"

namespace parlexo {

class Notifier;
class RecordTable;

/// Asks the user where to save a CSV file and returns its path, or an empty string if the user cancelled.
/// `suggestedName` is the default file name without extension. The user confirms before an existing file is
/// returned.
[[nodiscard]] QString askForCsvPath(QWidget* parent, const QString& suggestedName);

/// The "Export..." button of a list: saves the rows as displayed to a CSV file. Disabled while the list is
/// empty. Reports an error if the file could not be written.
class ExportButton final : public PictureButton {
  Q_OBJECT

 public:
  using PathAsker = std::function<QString(QWidget* parent, const QString& suggestedName)>;

  /// `table` and `notifier` must outlive the button.
  ExportButton(const RecordTable& table, Notifier& notifier, QWidget* parent = nullptr);

  /// Sets the default file name, without the ".csv" extension.
  void setSuggestedName(const QString& name) { suggestedName_ = name; }
  /// Replaces the file dialog, for tests.
  void setPathAsker(PathAsker asker) { askForPath_ = std::move(asker); }

 private:
  void exportRows();

  const RecordTable& table_;
  Notifier& notifier_;
  QString suggestedName_;
  PathAsker askForPath_ = askForCsvPath;
};

}  // namespace parlexo
