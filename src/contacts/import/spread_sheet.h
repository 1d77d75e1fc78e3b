// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QCoreApplication>
#include <QString>

#include "base/call_runner.h"
#include "contacts/import/sheet.h"

namespace parlexo {

/// The message for a sheet whose formulas can't be read.
[[nodiscard]] QString unreadFormulasText();

/// The sheets of a workbook file (.xls, .xlsx or .ods) with their cells as text. Numbers have all their
/// digits. A cell with a formula contains the result stored in the file, or is empty in .xls files.
class CSpreadSheet {
  Q_DECLARE_TR_FUNCTIONS(CSpreadSheet)

 public:
  struct NamedSheet {
    QString name;
    Sheet sheet;
    bool isHidden = false;
    bool lacksFormulas = false;  ///< contains formulas whose results can't be read
  };

  /// Returns whether the content of the file begins like a workbook. The extension is ignored, because some
  /// programs use it for text files and vice versa.
  [[nodiscard]] static bool isWorkbook(const QString& path);

  /// Reads all non-empty sheets. Hidden sheets come last, with "(hidden)" appended to their names. Returns a
  /// message for the user on error, otherwise an empty string. Ends early when `cancel` is raised.
  [[nodiscard]] QString read(const QString& path, const ImportLimits& limits, const CancelFlag& cancel);

  [[nodiscard]] const std::vector<NamedSheet>& sheets() const { return sheets_; }

 private:
  std::vector<NamedSheet> sheets_;
};

}  // namespace parlexo
