// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/csv_writer.h"

#include <algorithm>

#include <QDir>
#include <QSaveFile>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

// Negative amounts are not escaped, because spreadsheets could not sum them as text.
bool isNegativeNumber(QStringView cell) {
  const QStringView digits = cell.mid(1);
  return cell.front() == u'-' && !digits.isEmpty() && std::all_of(digits.begin(), digits.end(), [](QChar c) {
           return (c >= u'0' && c <= u'9') || c == u'.';
         });
}

// Spreadsheets also skip a leading tab or line break before a formula.
bool isFormula(QStringView cell) {
  static constexpr QStringView signs = u"=+-@\t\r\n";
  return !cell.isEmpty() && signs.contains(cell.front()) && !isNegativeNumber(cell);
}

// Leading and trailing blanks need no quotes by the RFC, but many readers trim unquoted ones.
bool needsQuotes(QStringView cell) {
  static constexpr QStringView special = u",\"\r\n";
  if (cell.isEmpty()) return false;
  return cell.front().isSpace() || cell.back().isSpace() ||
         std::any_of(cell.begin(), cell.end(), [](QChar c) { return special.contains(c); });
}

QString quoted(QString cell) {
  return u'"' + cell.replace(u'"', u"\"\""_s) + u'"';
}

}  // namespace

CsvWriter::CsvWriter(CsvCells cells) : cells_(cells), bytes_(byteOrderMark) {}

void CsvWriter::addRow(const QStringList& cells) {
  QStringList written;
  written.reserve(cells.size());
  for (const QString& cell : cells) {
    const bool isEscaped = cells_ == CsvCells::Escaped && isFormula(cell);
    const QString text = isEscaped ? u'\'' + cell : cell;
    written.append(needsQuotes(text) ? quoted(text) : text);
  }
  // A row with a single empty cell would be a blank line, which readers skip.
  bytes_ += (written == QStringList{QString()} ? u"\"\""_s : written.join(u',')).toUtf8() + "\r\n";
}

QString CsvWriter::save(const QString& path) const {
  QSaveFile file(path);
  if (file.open(QIODevice::WriteOnly)) {
    file.write(bytes_);
    if (file.flush() && file.commit()) return {};
  }
  return tr("The file %1 could not be written: %2").arg(QDir::toNativeSeparators(path), file.errorString());
}

}  // namespace parlexo
