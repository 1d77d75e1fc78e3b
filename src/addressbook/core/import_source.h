// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QString>
#include <QStringList>

#include "base/call_runner.h"
#include "contacts/import/delimited_file.h"
#include "contacts/import/sheet.h"

namespace parlexo {

class CSpreadSheet;
class Progress;

/// The file that an import reads from, and how it is read. Large files and slow folders are read by the
/// services' runner, under a progress box when that lasts.
class ImportSource {
 public:
  /// How many rows are enough for a look at the file; headings come on top.
  static constexpr int previewRows = 20;

  ImportSource(CallRunner& runner, Progress& progress, const ImportLimits& limits = {});

  /// Opens a file of any kind that can be imported and finds out its format. What is wrong with it is in
  /// problem() afterwards.
  void open(const QString& path);
  /// Reads the beginning of a text file anew in another format.
  void setFormat(const DelimitedFormat& format);
  /// Chooses a sheet of a workbook, counted from 0.
  void chooseSheet(int number);

  [[nodiscard]] const QString& path() const { return path_; }
  [[nodiscard]] bool isWorkbook() const { return workbook_ != nullptr; }
  [[nodiscard]] const DelimitedFormat& format() const { return format_; }
  /// Of a workbook, those with cells.
  [[nodiscard]] QStringList sheetNames() const;

  /// All rows of a workbook's sheet, the first rows of a text file.
  [[nodiscard]] const Sheet& preview() const;
  /// What the user should know of the file although it can be imported; may be empty.
  [[nodiscard]] QString remark() const;
  /// What is wrong with the file, as the user is told; empty when it can be imported as far as it was read.
  [[nodiscard]] const QString& problem() const { return problem_; }

  /// Reads all rows of a text file, after which preview() has them. False, with a problem, when that fails.
  [[nodiscard]] bool readAll();

 private:
  struct Opening;

  void readText(int maxRows);
  void run(const CallRunner::Task& reading);

  CallRunner& runner_;
  Progress& progress_;
  ImportLimits limits_;
  QString path_;
  DelimitedFormat format_;
  std::shared_ptr<const CSpreadSheet> workbook_;
  std::size_t sheetNumber_ = 0;
  Sheet text_;
  QString problem_;
};

}  // namespace parlexo
