// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>

#include "base/call_runner.h"
#include "contacts/import/import_limits.h"
#include "contacts/import/sheet.h"

namespace parlexo {

/// What to say of a sheet whose formulas can't be read.
[[nodiscard]] QString unreadFormulasText();

/// The sheets of a workbook file (.xls, .xlsx or .ods) with their rows and cells as texts. Numbers keep all
/// their digits. Of a formula the result that the file holds is read, except in .xls, whose reader finds
/// none.
class CSpreadSheet {
 public:
  struct NamedSheet {
    QString name;
    Sheet sheet;
    bool isHidden = false;
    bool lacksFormulas = false;  ///< it has formulas whose results can't be read
  };

  /// Whether the file begins like a workbook, whatever its name says: programs give text files the names of
  /// workbooks and the other way round.
  [[nodiscard]] static bool isWorkbook(const QString& path);

  /// Reads all sheets with cells; hidden ones come last and have "(hidden)" behind their names. Returns what
  /// is wrong with the file, for the user; empty when nothing is. Raising `cancel` ends the reading early.
  [[nodiscard]] QString read(const QString& path, const ImportLimits& limits, const CancelFlag& cancel);

  [[nodiscard]] const std::vector<NamedSheet>& sheets() const { return sheets_; }

 private:
  std::vector<NamedSheet> sheets_;
};

}  // namespace parlexo
