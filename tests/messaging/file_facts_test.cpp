#include "messaging/core/file_facts.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

#include "messaging/core/page_count.h"

namespace parlexo {
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

/// A TIFF with one directory for each subfile type of `types`; the last one names `next` as its successor.
QByteArray tiffOf(const std::vector<quint32>& types, quint32 next = 0) {
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

class FileFactsTest : public testing::Test {
 protected:
  QString write(const QString& name, const QByteArray& bytes) {
    QFile file(folder_.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("no disk");
    return file.fileName();
  }
  QTemporaryDir folder_;
};

TEST_F(FileFactsTest, tellNameSizeLimitAndWhatIsWrong) {
  constexpr qint64 limit = 51'200;
  const struct {
    QString path;
    const char* text;
  } samples[] = {
      {write("a.jpg", QByteArray(1, 'x')), "a.jpg: 1 byte of at most 50 KB"},
      {write("b.jpg", QByteArray(1023, 'x')), "b.jpg: 1,023 bytes of at most 50 KB"},
      {write("c.jpg", QByteArray(35'021, 'x')), "c.jpg: 34.2 KB of at most 50 KB"},
      {write("d.jpg", QByteArray(51'200, 'x')), "d.jpg: 50 KB of at most 50 KB"},
      {write("e.jpg", QByteArray(51'201, 'x')), "e.jpg: 51,201 bytes, but at most 51,200 bytes can be sent"},
      {write("empty", ""), "empty: empty"},
      {folder_.path(), "This is a folder or a device, not a file."},
      {"/dev/zero", "This is a folder or a device, not a file."},
      {folder_.filePath("missing"), "There is no such file."},
  };
  for (const auto& sample : samples)
    EXPECT_EQ(fileFacts(sample.path, limit).text(), QString::fromLatin1(sample.text));
  FileFacts fax = fileFacts(write("f.pdf", pdf), limit);
  fax.pages = 1;
  EXPECT_EQ(fax.text(), "f.pdf: 254 bytes of at most 50 KB, 1 page");
}

TEST_F(FileFactsTest, pagesOfDocumentsAreCountedAndBrokenOnesHaveNone) {
  constexpr quint32 reduced = 1;
  constexpr quint32 page = 2;
  const struct {
    const char* what;
    QByteArray content;
    std::optional<int> pages;
  } samples[] = {
      {"TIFF", tiffOf({page, page, page}), 3},
      {"TIFF with a small picture of its page", tiffOf({page, reduced}), 1},
      {"TIFF whose directories run in a circle", tiffOf({page, page}, 8), {}},
      {"TIFF that is cut off", tiffOf({page, page}).chopped(30), {}},
      {"TIFF of nothing but its mark", "II*", {}},
      {"PDF", pdf, 2},
      {"PDF behind a line of mail", "X-Mail: yes\n" + pdf, 2},
      {"PDF that is cut off", pdf.left(40), {}},
      {"text", "Dear all", {}},
      {"nothing", "", {}},
  };
  for (const auto& sample : samples)
    EXPECT_EQ(pageCount(write("document", sample.content)), sample.pages) << sample.what;
  EXPECT_EQ(pageCount(folder_.path()), std::nullopt);
  EXPECT_EQ(pageCount("/dev/zero"), std::nullopt);
}

}  // namespace
}  // namespace parlexo
