// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtEndian>

#include "messaging/core/file_facts.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

void put(QByteArray& bytes, quint16 value) {
  char buffer[sizeof value];
  qToLittleEndian(value, buffer);
  bytes.append(buffer, sizeof buffer);
}

void put32(QByteArray& bytes, quint32 value) {
  put(bytes, static_cast<quint16>(value & 0xFFFF));
  put(bytes, static_cast<quint16>(value >> 16));
}

/// A TIFF with one directory for each subfile type in `types`; `next` is the successor of the last one.
QByteArray makeTiff(const std::vector<quint32>& types, quint32 next = 0) {
  const std::vector<std::pair<quint16, quint32>> tags = {{256, 1}, {257, 1}, {273, 8}, {278, 1}, {279, 1}};
  const auto directorySize = static_cast<quint32>(2 + 12 * (tags.size() + 1) + 4);
  QByteArray bytes("II*\0", 4);
  put32(bytes, 8);
  for (std::size_t i = 0; i < types.size(); ++i) {
    put(bytes, static_cast<quint16>(tags.size() + 1));
    const auto entry = [&bytes](quint16 tag, quint32 value) {
      put(bytes, tag);
      put(bytes, quint16{4});  // a 32-bit number
      put32(bytes, 1);
      put32(bytes, value);
    };
    entry(254, types[i]);
    for (const auto& [tag, value] : tags) entry(tag, value);
    const bool isLast = i + 1 == types.size();
    put32(bytes, isLast ? next : static_cast<quint32>(8 + (i + 1) * directorySize));
  }
  return bytes;
}

const QByteArray pdf =
    "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
    "2 0 obj<</Type/Pages/Count 2/Kids[3 0 R 4 0 R]>>endobj\n"
    "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 9 9]>>endobj\n"
    "4 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 9 9]>>endobj\n"
    "trailer<</Root 1 0 R>>\n%%EOF\n";

/// The same document with a password, encrypted with 40-bit RC4.
QByteArray lockedPdf(const QByteArray& userEntry) {
  const QByteArray lock = "/Encrypt<</Filter/Standard/V 1/R 2/P -4/O<" + QByteArray(64, '0') + ">/U<" +
                          userEntry + ">>>/ID[<00><00>]";
  return QByteArray(pdf).replace("trailer<<", "trailer<<" + lock);
}

// The user entry for the empty password, and one for another password.
const QByteArray emptyPasswordsEntry = "a2131391556101128e64737bb2f0fb1452b6beed66a7e0dbcc3276f389ab335f";
const QByteArray otherPasswordsEntry(64, '1');

/// A PDF whose objects are nested in 200,000 object streams, which exhausts the stack of a reader.
QByteArray pdfOfNestedObjects() {
  constexpr int objects = 200'000;
  QByteArray entries;
  for (int i = 0; i < objects; ++i) {
    const int stream = i + 1;
    const char entry[] = {2, static_cast<char>(stream >> 16), static_cast<char>(stream >> 8),
                          static_cast<char>(stream), 0};
    entries.append(entry, sizeof entry);
  }
  const QByteArray size = QByteArray::number(objects);
  return "%PDF-1.5\n1 0 obj<</Type/XRef/Root 2 0 R/W[1 3 1]/Size " + size + "/Length " +
         QByteArray::number(entries.size()) + ">>stream\n" + entries +
         "\nendstream endobj\nstartxref\n9\n%%EOF\n";
}

TEST(PageCount, isReadFromValidDocuments) {
  const QTemporaryDir folder;
  const auto write = [&folder](const QByteArray& bytes) {
    QFile file(folder.filePath(QStringLiteral(u"r\u00E9sum\u00E9 \u4E2D\u6587 & 'co'.bin")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return file.fileName();
  };
  constexpr quint32 reduced = 1;
  constexpr quint32 page = 2;
  const Cases<const char*, QByteArray, std::optional<int>> samples = {
      {"TIFF", makeTiff({page, page, page}), 3},
      {"TIFF with a small picture of its page", makeTiff({page, reduced}), 1},
      {"TIFF whose directories run in a circle", makeTiff({page, page}, 8), {}},
      {"TIFF that is cut off", makeTiff({page, page}).chopped(30), {}},
      {"TIFF of nothing but its mark", "II*", {}},
      {"PDF", pdf, 2},
      {"PDF behind a line of mail", "X-Mail: yes\n" + pdf, 2},
      {"PDF that is cut off", pdf.left(40), {}},
      {"PDF that opens without its password", lockedPdf(emptyPasswordsEntry), 2},
      {"PDF that asks for its password", lockedPdf(otherPasswordsEntry), {}},
      {"PDF whose page tree runs in a circle", QByteArray(pdf).replace("[3 0 R", "[2 0 R"), {}},
      {"PDF made to end its reader", pdfOfNestedObjects(), {}},
      {"text", "Dear all", {}},
      {"nothing", "", {}},
  };
  for (const auto& [what, content, pages] : samples) EXPECT_EQ(pageCount(write(content)), pages) << what;
  EXPECT_EQ(pageCount(folder.path()), std::nullopt);
  if (!QFile::exists("/dev/zero")) return;
  EXPECT_EQ(pageCount("/dev/zero"), std::nullopt);
  EXPECT_EQ(fileFacts("/dev/zero", 1).text(), "This is a folder or a device, not a file.");
}

}  // namespace
}  // namespace parlexo::test
