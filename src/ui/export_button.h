// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QString>

#include "ui/picture_button.h"

namespace parlexo {

class Notifier;
class RecordTable;

/// Asks the user where to save a CSV file that is called `suggestedName` unless they say otherwise; returns
/// its path, or an empty text when they think better of it. A file that exists is only named after the user
/// has agreed to replace it.
[[nodiscard]] QString askForCsvPath(QWidget* parent, const QString& suggestedName);

/// The button "Export..." of a list: saves its rows, as they are shown, as a CSV file that spreadsheets open.
/// Disabled while there are none. The user is told when the file could not be written.
class ExportButton final : public PictureButton {
  Q_OBJECT

 public:
  using PathAsker = std::function<QString(QWidget* parent, const QString& suggestedName)>;

  /// `table` and `notifier` must outlive the button.
  ExportButton(const RecordTable& table, Notifier& notifier, QWidget* parent = nullptr);

  /// The name that is suggested for the file, without ".csv".
  void setSuggestedName(const QString& name) { suggestedName_ = name; }
  void setPathAsker(PathAsker asker) { askForPath_ = std::move(asker); }

 private:
  void exportRows();

  const RecordTable& table_;
  Notifier& notifier_;
  QString suggestedName_;
  PathAsker askForPath_ = askForCsvPath;
};

}  // namespace parlexo
