// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/delimited_file.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>

#include "base/code_page.h"
#include "contacts/import/delimited_parser.h"
#include "contacts/import/number_format.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 chunkBytes = 1 << 18;
constexpr int sampledRows = 20;

/// Decodes a file chunk by chunk and removes the byte order mark.
class TextDecoder {
 public:
  explicit TextDecoder(TextEncoding encoding) : converter_(converterFor(encoding)) {}

  QString decode(QByteArrayView bytes) {
    QString text = converter_ ? QString(converter_->decode(bytes)) : fromCodePage(bytes);
    if (atStart_ && !text.isEmpty()) {
      atStart_ = false;
      if (text.front() == QChar(QChar::ByteOrderMark)) text.remove(0, 1);
    }
    return text;
  }

 private:
  static std::optional<QStringDecoder> converterFor(TextEncoding encoding) {
    switch (encoding) {
      case TextEncoding::Utf8:
        return std::optional<QStringDecoder>(QStringDecoder::Utf8);
      case TextEncoding::Utf16LittleEndian:
        return std::optional<QStringDecoder>(QStringDecoder::Utf16LE);
      case TextEncoding::Utf16BigEndian:
        return std::optional<QStringDecoder>(QStringDecoder::Utf16BE);
      case TextEncoding::CodePage:
        return std::nullopt;
    }
    Q_UNREACHABLE();
  }

  std::optional<QStringDecoder> converter_;
  bool atStart_ = true;
};

bool isUtf8(QFile& file, const CancelFlag& cancel) {
  QStringDecoder decoder(QStringDecoder::Utf8);
  while (!file.atEnd() && !cancel.isRaised()) {
    const QString text = decoder.decode(file.read(chunkBytes));
    if (text.isEmpty() || decoder.hasError()) return false;
  }
  // The decoder only reports a truncated sequence at the end of the file when more bytes follow.
  const QString tail = decoder.decode("\n");
  return tail.size() == 1 && !decoder.hasError();
}

TextEncoding detectEncoding(QFile& file, const CancelFlag& cancel) {
  const QByteArray start = file.peek(3);
  if (start.startsWith("\xEF\xBB\xBF")) return TextEncoding::Utf8;
  if (start.startsWith("\xFF\xFE")) return TextEncoding::Utf16LittleEndian;
  if (start.startsWith("\xFE\xFF")) return TextEncoding::Utf16BigEndian;
  return isUtf8(file, cancel) ? TextEncoding::Utf8 : TextEncoding::CodePage;
}

/// Returns how many rows have the most frequent number of cells above one.
int evenRows(const Sheet& sheet) {
  std::map<int, int> rowsByCells;
  for (int row = 0; row < sheet.rowCount(); ++row) {
    if (sheet.isBlank(row)) continue;
    if (sheet.cellCount(row) > 1) ++rowsByCells[sheet.cellCount(row)];
  }
  int most = 0;
  for (const auto& [cells, rows] : rowsByCells) most = std::max(most, rows);
  return most;
}

/// Returns the number of phone numbers in the column with the most of them.
int rowsWithNumber(const Sheet& sheet) {
  int most = 0;
  for (int column = 0; column < sheet.columnCount(); ++column) {
    int rows = 0;
    for (int row = 0; row < sheet.rowCount(); ++row)
      if (isPossiblePhoneNumber(sheet.cell(row, column))) ++rows;
    most = std::max(most, rows);
  }
  return most;
}

/// A first line such as "sep=;", which specifies the delimiter for spreadsheet programs.
struct SeparatorLine {
  QChar delimiter;
  qsizetype length = 0;  ///< including the line break; 0 if there is no such line
};

SeparatorLine findSeparatorLine(const QString& text) {
  static const QRegularExpression pattern(u"^\"?sep=(.)\"?(\r\n|\r|\n|$)"_s,
                                          QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = pattern.match(text);
  return match.hasMatch() ? SeparatorLine{match.captured(1).front(), match.capturedLength()}
                          : SeparatorLine{};
}

QString readBeginning(const QString& path, TextEncoding encoding) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? TextDecoder(encoding).decode(file.read(chunkBytes)) : QString();
}

QChar detectDelimiter(const QString& path, TextEncoding encoding, const ImportLimits& limits,
                      const CancelFlag& cancel) {
  const SeparatorLine named = findSeparatorLine(readBeginning(path, encoding));
  if (std::count(std::begin(knownDelimiters), std::end(knownDelimiters), named.delimiter) != 0)
    return named.delimiter;
  QChar best = path.endsWith(QLatin1String(".tsv"), Qt::CaseInsensitive) ? u'\t' : u',';
  // Even rows have priority over a column of numbers.
  std::pair<int, int> bestRows;
  for (const QChar delimiter : knownDelimiters) {
    const SheetReading reading = readDelimited(path, {encoding, delimiter}, limits, cancel, sampledRows);
    // Misplaced quotation marks indicate a wrong delimiter.
    if (!reading.problem.isEmpty()) continue;
    const std::pair rows(evenRows(reading.sheet), rowsWithNumber(reading.sheet));
    if (rows.first == 0 || rows <= bestRows) continue;
    bestRows = rows;
    best = delimiter;
  }
  return best;
}

}  // namespace

QString fileProblem(const QString& path, const ImportLimits& limits) {
  const QFileInfo info(path);
  if (!info.exists()) return SheetReading::tr("There is no such file: %1").arg(path);
  // A pipe or device might never end.
  if (!info.isFile()) return SheetReading::tr("This is not a file: %1").arg(path);
  if (info.size() > limits.fileBytes)
    return SheetReading::tr("The file has %L1 MB. Files of more than %L2 MB can't be imported.")
        .arg(info.size() >> 20)
        .arg(limits.fileBytes >> 20);
  if (info.size() == 0) return SheetReading::tr("The file is empty.");
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    return SheetReading::tr("The file can't be opened: %1").arg(file.errorString());
  return {};
}

DelimitedFormat detectFormat(const QString& path, const ImportLimits& limits, const CancelFlag& cancel) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const TextEncoding encoding = detectEncoding(file, cancel);
  return {encoding, detectDelimiter(path, encoding, limits, cancel)};
}

SheetReading readDelimited(const QString& path, const DelimitedFormat& format, const ImportLimits& limits,
                           const CancelFlag& cancel, int maxRows) {
  SheetReading reading;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    reading.problem = SheetReading::tr("The file can't be opened: %1").arg(file.errorString());
    return reading;
  }
  TextDecoder decoder(format.encoding);
  DelimitedParser parser(format.delimiter, limits, maxRows, reading.sheet);
  for (bool isFirst = true;;) {
    const QByteArray bytes = file.read(chunkBytes);
    if (bytes.isEmpty()) break;
    const QString text = decoder.decode(bytes);
    const qsizetype skipped = isFirst ? findSeparatorLine(text).length : 0;
    if (skipped > 0) parser.skipLine();
    isFirst = false;
    if (!parser.feed(QStringView(text).sliced(skipped)) || cancel.isRaised()) break;
  }
  if (cancel.isRaised()) return reading;
  parser.finish();
  reading.problem = file.error() == QFileDevice::NoError
                        ? parser.problem()
                        : SheetReading::tr("The file can't be read: %1").arg(file.errorString());
  return reading;
}

}  // namespace parlexo
