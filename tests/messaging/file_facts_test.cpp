// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/file_facts.h"

#include "tests/support/file_bytes.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

TEST(FileFacts, containNameSizeLimitAndProblem) {
  const QTemporaryDir folder;
  const auto write = [&folder](const char* name, qsizetype size) {
    return writeBytes(folder.filePath(QString::fromUtf8(name)), QByteArray(size, 'x'));
  };
  constexpr qint64 limit = 51'200;
  const Cases<QString, const char*> samples = {
      {write("a.jpg", 1), "a.jpg: 1 byte of at most 50 KB"},
      {write("b.jpg", 1023), "b.jpg: 1,023 bytes of at most 50 KB"},
      {write("c.jpg", 35'021), "c.jpg: 34.2 KB of at most 50 KB"},
      {write("d.jpg", 51'200), "d.jpg: 50 KB of at most 50 KB"},
      {write("e.jpg", 51'201), "e.jpg: 51,201 bytes, but at most 51,200 bytes can be sent"},
      {write("Gr\xC3\xBC\xC3\x9F \xE4\xBD\xA0.jpg", 1),
       "Gr\xC3\xBC\xC3\x9F \xE4\xBD\xA0.jpg: 1 byte of at most 50 KB, will be sent as \"Gr\xC3\xBC\xC3\x9F "
       "?.jpg\""},
      {write("empty", 0), "empty: empty"},
      {folder.path(), "This is a folder or a device, not a file."},
      {folder.filePath("missing"), "There is no such file."},
  };
  for (const auto& [path, text] : samples) EXPECT_EQ(fileFacts(path, limit).text(), QString::fromUtf8(text));
  FileFacts fax = fileFacts(write("f.pdf", 254), limit);
  fax.pages = 1;
  EXPECT_EQ(fax.text(), "f.pdf: 254 bytes of at most 50 KB, 1 page");
}

}  // namespace
}  // namespace parlexo::test
