// SPDX-License-Identifier: GPL-3.0-or-later
// Reads .xls workbooks with libfreexl.

#include <freexl.h>

#include <algorithm>

#include <QFile>

#include "contacts/import/binary_records.h"
#include "contacts/import/number_format.h"
#include "contacts/import/workbook_builder.h"
#include "contacts/import/workbook_readers.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

class Workbook {
 public:
  explicit Workbook(const QString& path) { result_ = freexl_open(path.toUtf8().constData(), &handle_); }
  ~Workbook() {
    if (handle_) freexl_close(handle_);
  }
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  [[nodiscard]] bool isOpen() const { return result_ == FREEXL_OK; }
  [[nodiscard]] const void* handle() const { return handle_; }
  [[nodiscard]] unsigned info(unsigned short what) const {
    unsigned value = 0;
    return freexl_get_info(handle_, what, &value) == FREEXL_OK ? value : 0;
  }

 private:
  const void* handle_ = nullptr;
  int result_ = FREEXL_OK;
};

void readCell(const Workbook& book, std::size_t sheet, unsigned row, unsigned short column,
              WorkbookBuilder& builder) {
  FreeXL_CellValue cell;
  if (freexl_get_cell_value(book.handle(), row, column, &cell) != FREEXL_OK) return;
  const int atRow = static_cast<int>(row);
  switch (cell.type) {
    case FREEXL_CELL_INT:
      builder.setCell(sheet, atRow, column, QString::number(cell.value.int_value));
      break;
    case FREEXL_CELL_DOUBLE:
      builder.setCell(sheet, atRow, column, numberText(cell.value.double_value));
      break;
    case FREEXL_CELL_TEXT:
    case FREEXL_CELL_SST_TEXT:
    case FREEXL_CELL_DATE:
    case FREEXL_CELL_DATETIME:
    case FREEXL_CELL_TIME:
      if (cell.value.text_value)
        builder.setCell(sheet, atRow, column, QString::fromUtf8(cell.value.text_value));
      break;
    default:
      break;
  }
}

void readSheet(const Workbook& book, unsigned short number, const BinarySheet& properties,
               WorkbookBuilder& builder) {
  const char* name = nullptr;
  if (freexl_get_worksheet_name(book.handle(), number, &name) != FREEXL_OK || !name) return;
  const std::size_t sheet = builder.addSheet(QString::fromUtf8(name), properties.isHidden);
  if (properties.hasFormulas) builder.setLacksFormulas(sheet);
  unsigned rows = 0;
  unsigned short columns = 0;
  if (freexl_select_active_worksheet(book.handle(), number) != FREEXL_OK ||
      freexl_worksheet_dimensions(book.handle(), &rows, &columns) != FREEXL_OK)
    return;
  for (unsigned row = 0; row < rows && builder.isOpen(); ++row)
    for (unsigned short column = 0; column < columns; ++column) readCell(book, sheet, row, column, builder);
}

std::vector<BinarySheet> readSheetProperties(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.readAll();
  QByteArray stream = readCompoundStream(bytes, u"Workbook");
  if (stream.isEmpty()) stream = readCompoundStream(bytes, u"Book");  // before Excel 97
  return readBinarySheets(stream);
}

}  // namespace

QString readBinaryWorkbook(const QString& path, const ImportLimits& limits, const CancelFlag& cancel,
                           NamedSheets& sheets) {
  const Workbook book(path);
  if (!book.isOpen() || book.info(FREEXL_BIFF_PASSWORD) == FREEXL_BIFF_OBFUSCATED)
    return CSpreadSheet::tr("The workbook can't be read. It is damaged or protected by a password.");
  WorkbookBuilder builder(limits, cancel);
  const std::vector<BinarySheet> properties = readSheetProperties(path);
  const unsigned count = book.info(FREEXL_BIFF_SHEET_COUNT);
  for (unsigned sheet = 0; sheet < count && builder.isOpen(); ++sheet)
    readSheet(book, static_cast<unsigned short>(sheet),
              sheet < properties.size() ? properties[sheet] : BinarySheet(), builder);
  sheets = builder.build();
  const bool hasFormulas = std::any_of(properties.begin(), properties.end(),
                                       [](const BinarySheet& sheet) { return sheet.hasFormulas; });
  if (sheets.empty() && hasFormulas && builder.problem().isEmpty()) return unreadFormulasText();
  return builder.problem();
}

}  // namespace parlexo
