// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/binary_records.h"

#include <algorithm>
#include <optional>
#include <vector>

#include <QHash>
#include <QtEndian>

namespace parlexo {

namespace {

constexpr qsizetype headerSize = 512;
constexpr qsizetype entrySize = 128;
constexpr quint32 lastNumber = 0xFFFFFFFA;  // higher numbers mark free sectors and ends of chains

template <class Number>
Number numberAt(QByteArrayView bytes, qsizetype offset) {
  if (offset < 0 || offset + static_cast<qsizetype>(sizeof(Number)) > bytes.size()) return 0;
  return qFromLittleEndian<Number>(bytes.data() + offset);
}

void appendNumbers(QByteArrayView bytes, std::vector<quint32>& numbers) {
  for (qsizetype at = 0; at + 4 <= bytes.size(); at += 4) numbers.push_back(numberAt<quint32>(bytes, at));
}

class CompoundFile {
 public:
  explicit CompoundFile(QByteArrayView file) : file_(file), sectorSize_(sizeAt(30)) {
    readAllocationTable();
    directory_ = readChain(numberAt<quint32>(file_, 48));
  }

  [[nodiscard]] QByteArray read(QStringView name) const {
    const std::optional<Entry> entry = findEntry(name);
    if (!entry) return {};
    const quint32 smallestLarge = numberAt<quint32>(file_, 56);
    return (entry->size < smallestLarge ? readSmallChain(entry->start) : readChain(entry->start))
        .left(entry->size);
  }

 private:
  struct Entry {
    quint32 start;
    quint32 size;
  };

  /// Sizes are stored as powers of two.
  [[nodiscard]] qsizetype sizeAt(qsizetype offset) const {
    constexpr int largestPower = 16;
    return qsizetype{1} << std::min<int>(numberAt<quint16>(file_, offset), largestPower);
  }

  // The first sectors of the table are listed in the header, the others in a separate chain of sectors.
  void readAllocationTable() {
    constexpr qsizetype listStart = 76;
    std::vector<quint32> tableSectors;
    if (file_.size() >= headerSize) appendNumbers(file_.first(headerSize).sliced(listStart), tableSectors);
    quint32 next = numberAt<quint32>(file_, 68);
    for (qsizetype left = file_.size() / sectorSize_; next <= lastNumber && left > 0; --left) {
      const QByteArrayView list = sector(next);
      if (list.size() < sectorSize_ || sectorSize_ < headerSize) break;
      appendNumbers(list.chopped(4), tableSectors);
      next = numberAt<quint32>(list, sectorSize_ - 4);
    }
    // The table could exceed the file if a sector is listed twice.
    const auto mostSectors = static_cast<std::size_t>(file_.size() / sectorSize_);
    for (const quint32 number : tableSectors)
      if (number <= lastNumber && table_.size() <= mostSectors) appendNumbers(sector(number), table_);
  }

  [[nodiscard]] QByteArrayView sector(quint32 number) const {
    const qsizetype offset = std::max(headerSize, sectorSize_) + static_cast<qsizetype>(number) * sectorSize_;
    if (offset >= file_.size()) return {};
    return file_.sliced(offset).first(std::min(sectorSize_, file_.size() - offset));
  }

  // A chain in a malicious file may be circular.
  [[nodiscard]] bool mayGrow(const QByteArray& bytes, std::size_t sectorsLeft) const {
    return sectorsLeft > 0 && bytes.size() < file_.size();
  }

  [[nodiscard]] QByteArray readChain(quint32 number) const {
    QByteArray bytes;
    for (std::size_t left = table_.size(); number < table_.size() && mayGrow(bytes, left); --left) {
      bytes += sector(number);
      number = table_[number];
    }
    return bytes;
  }

  // Streams of a few KB are stored in the sectors of the root entry.
  [[nodiscard]] QByteArray readSmallChain(quint32 number) const {
    const std::optional<Entry> root = findEntry(u"Root Entry");
    if (!root) return {};
    const QByteArray sectors = readChain(root->start);
    std::vector<quint32> table;
    appendNumbers(readChain(numberAt<quint32>(file_, 60)), table);
    const qsizetype size = sizeAt(32);
    QByteArray bytes;
    for (std::size_t left = table.size(); number < table.size() && mayGrow(bytes, left); --left) {
      bytes += sectors.mid(static_cast<qsizetype>(number) * size, size);
      number = table[number];
    }
    return bytes;
  }

  [[nodiscard]] std::optional<Entry> findEntry(QStringView name) const {
    for (qsizetype at = 0; at + entrySize <= directory_.size(); at += entrySize) {
      const qsizetype nameBytes = numberAt<quint16>(directory_, at + 64);  // including the terminating zero
      if (nameBytes != (name.size() + 1) * 2) continue;
      const auto sameAt = [&](qsizetype i) {
        return numberAt<quint16>(directory_, at + i * 2) == name[i].unicode();
      };
      qsizetype same = 0;
      while (same < name.size() && sameAt(same)) ++same;
      if (same == name.size())
        return Entry{numberAt<quint32>(directory_, at + 116), numberAt<quint32>(directory_, at + 120)};
    }
    return std::nullopt;
  }

  QByteArrayView file_;
  qsizetype sectorSize_;
  std::vector<quint32> table_;
  QByteArray directory_;
};

constexpr quint16 boundSheet = 0x0085;
constexpr quint16 formula = 0x0006;
constexpr quint8 hiddenStates = 0x03;  // hidden, and hidden from the "Unhide" menu
constexpr qsizetype headSize = 4;
constexpr qsizetype boundSheetSize = 5;  // the part read here

}  // namespace

QByteArray readCompoundStream(QByteArrayView file, QStringView streamName) {
  return CompoundFile(file).read(streamName);
}

std::vector<BinarySheet> readBinarySheets(QByteArrayView stream) {
  std::vector<BinarySheet> sheets;
  // The first part of the workbook lists the offsets of the sheets, which follow it.
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
