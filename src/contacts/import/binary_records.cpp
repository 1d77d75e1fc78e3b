// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/binary_records.h"

#include <optional>

#include <QHash>
#include <QtEndian>

namespace parlexo {

namespace {

constexpr quint16 boundSheet = 0x0085;
constexpr quint16 formula = 0x0006;
constexpr quint8 hiddenStates = 0x03;  // hidden, and hidden from the menu that shows sheets again
constexpr qsizetype headSize = 4;
constexpr qsizetype boundSheetSize = 5;  // as far as it is read

}  // namespace

std::vector<BinarySheet> readBinarySheets(QByteArrayView stream) {
  std::vector<BinarySheet> sheets;
  // The parts of the workbook follow one another, and the first one lists where the sheets begin.
  QHash<quint32, std::size_t> sheetByStart;
  std::optional<std::size_t> current;
  qsizetype at = 0;
  while (at + headSize <= stream.size()) {
    const auto kind = qFromLittleEndian<quint16>(stream.data() + at);
    const QByteArrayView data = stream.sliced(at + headSize);
    const qsizetype size = qFromLittleEndian<quint16>(stream.data() + at + 2);
    if (size > data.size()) break;
    if (kind == boundSheet && size >= boundSheetSize) {
      sheetByStart.insert(qFromLittleEndian<quint32>(data.data()), sheets.size());
      sheets.push_back({.isHidden = (static_cast<quint8>(data[4]) & hiddenStates) != 0});
    }
    if (const auto found = sheetByStart.constFind(static_cast<quint32>(at)); found != sheetByStart.constEnd())
      current = *found;
    if (kind == formula && current) sheets[*current].hasFormulas = true;
    at += headSize + size;
  }
  return sheets;
}

}  // namespace parlexo
