// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/import/compound_file.h"

#include <algorithm>
#include <optional>
#include <vector>

#include <QtEndian>

namespace parlexo {

namespace {

constexpr qsizetype headerSize = 512;
constexpr qsizetype entrySize = 128;
constexpr quint32 lastNumber = 0xFFFFFFFA;  // higher ones mark free sectors and ends of chains

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

  /// Sizes are written as powers of two.
  [[nodiscard]] qsizetype sizeAt(qsizetype offset) const {
    constexpr int largestPower = 16;
    return qsizetype{1} << std::min<int>(numberAt<quint16>(file_, offset), largestPower);
  }

  // The first sectors of the table are listed in the header, further ones in a chain of sectors of their own.
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
    // A sector that is listed twice would make the table longer than the file.
    const auto mostSectors = static_cast<std::size_t>(file_.size() / sectorSize_);
    for (const quint32 number : tableSectors)
      if (number <= lastNumber && table_.size() <= mostSectors) appendNumbers(sector(number), table_);
  }

  [[nodiscard]] QByteArrayView sector(quint32 number) const {
    const qsizetype offset = std::max(headerSize, sectorSize_) + static_cast<qsizetype>(number) * sectorSize_;
    if (offset >= file_.size()) return {};
    return file_.sliced(offset).first(std::min(sectorSize_, file_.size() - offset));
  }

  // A chain may be made to run in a circle.
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

  // Streams of a few KB share the sectors of the root entry.
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
      const qsizetype nameBytes = numberAt<quint16>(directory_, at + 64);  // with the zero at its end
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

}  // namespace

QByteArray readCompoundStream(QByteArrayView file, QStringView streamName) {
  return CompoundFile(file).read(streamName);
}

}  // namespace parlexo
