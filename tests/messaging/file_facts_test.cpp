#include "messaging/core/file_facts.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace parlexo {
namespace {

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
      {folder_.filePath("missing"), "There is no such file."},
  };
  for (const auto& sample : samples)
    EXPECT_EQ(fileFacts(sample.path, limit).text(), QString::fromLatin1(sample.text));
  FileFacts fax = fileFacts(write("f.pdf", QByteArray(254, 'x')), limit);
  fax.pages = 1;
  EXPECT_EQ(fax.text(), "f.pdf: 254 bytes of at most 50 KB, 1 page");
}

}  // namespace
}  // namespace parlexo
