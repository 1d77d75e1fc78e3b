// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include "base/call_runner.h"
#include "contacts/import/delimited_file.h"
#include "contacts/import/sheet.h"

namespace parlexo {

class CSpreadSheet;
class Progress;

/// The file that an import reads, and its format. The file is read by a call runner. A progress box appears
/// if reading takes more than a moment. `runner` and `progress` must outlive the source.
class ImportSource {
  Q_DECLARE_TR_FUNCTIONS(ImportSource)

 public:
  /// The number of rows for a preview, plus headings.
  static constexpr int previewRows = 20;

  ImportSource(CallRunner& runner, Progress& progress, const ImportLimits& limits = {});

  /// Opens a file and detects its format. Sets problem() on error.
  void open(const QString& path);
  /// Reads the beginning of a text file again with another format.
  void setFormat(const DelimitedFormat& format);
  /// Selects a sheet of a workbook, counted from 0.
  void chooseSheet(int number);

  [[nodiscard]] const QString& path() const { return path_; }
  [[nodiscard]] bool isWorkbook() const { return workbook_ != nullptr; }
  [[nodiscard]] const DelimitedFormat& format() const { return format_; }
  /// The non-empty sheets of a workbook.
  [[nodiscard]] QStringList sheetNames() const;

  /// All rows of the selected sheet, or the first rows of a text file.
  [[nodiscard]] const Sheet& preview() const;
  /// A warning for the user about a file that can be imported; may be empty.
  [[nodiscard]] QString remark() const;
  /// The error message for the user; empty if no error has occurred.
  [[nodiscard]] const QString& problem() const { return problem_; }

  /// Reads all rows of a text file; preview() returns them afterwards. Returns false and sets problem() on
  /// error.
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
