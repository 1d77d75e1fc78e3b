// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/shared_file.h"

#include <sys/stat.h>

#include <atomic>
#include <thread>

#include "tests/contacts/file_size_limit.h"
#include "tests/contacts/store_fixture.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

using Mode = SharedFile::Mode;
using OpenResult = SharedFile::OpenResult;

struct SharedFileFixture : StoreFixture {
  QString path_ = filePath(u"shared"_s);
};

TEST_F(SharedFileFixture, modesExcludeEachOther) {
  const Cases<Mode, Mode, OpenResult> cases = {
      {Mode::Read, Mode::Read, OpenResult::Opened},
      {Mode::Read, Mode::Write, OpenResult::SharingViolation},
      {Mode::Read, Mode::Remove, OpenResult::SharingViolation},
      {Mode::Write, Mode::Read, OpenResult::SharingViolation},
      {Mode::Write, Mode::Write, OpenResult::SharingViolation},
      {Mode::Write, Mode::Create, OpenResult::Opened},
      {Mode::Erase, Mode::Read, OpenResult::SharingViolation},
      {Mode::Erase, Mode::Erase, OpenResult::SharingViolation},
      {Mode::Create, Mode::Write, OpenResult::Opened},
  };
  writeBytes(path_, "x");
  for (const auto& [first, second, result] : cases) {
    SharedFile holder;
    SharedFile other;
    EXPECT_EQ(holder.open(path_, first), OpenResult::Opened);
    EXPECT_EQ(other.open(path_, second), result) << int(first) << int(second);
    holder.close();
    EXPECT_EQ(other.open(path_, second), OpenResult::Opened);
  }
}

TEST_F(SharedFileFixture, onlyRemovalDoesNotCreateTheFile) {
  SharedFile file;
  EXPECT_EQ(file.open(path_, Mode::Remove), OpenResult::Failed);
  EXPECT_FALSE(QFileInfo::exists(path_));
  EXPECT_EQ(file.open(filePath(u"none/shared"_s), Mode::Write), OpenResult::Failed);
  QFile::link(u"none/shared"_s, filePath(u"link"_s));
  EXPECT_EQ(file.open(filePath(u"link"_s), Mode::Write), OpenResult::Failed);
  EXPECT_EQ(file.open(path_, Mode::Read), OpenResult::Opened);
  EXPECT_EQ(file.size(), 0);
}

TEST_F(SharedFileFixture, partialAppendIsUndone) {
  writeBytes(path_, QByteArray(100, 'a'));
  SharedFile file;
  ASSERT_EQ(file.open(path_, Mode::Write), OpenResult::Opened);
  ASSERT_TRUE(file.seek(100));
  bool written = true;
  {
    const FileSizeLimit limit(130);
    written = file.write(QByteArray(100, 'b'));
  }
  EXPECT_FALSE(written);
  EXPECT_EQ(readBytes(path_), QByteArray(100, 'a'));
}

TEST_F(SharedFileFixture, onlyRegularFilesAreOpened) {
  ASSERT_EQ(::mkfifo(qPrintable(path_), 0600), 0);
  writeBytes(filePath(u"cut"_s), "x");
  const QString withZero = filePath(u"cut"_s) + QChar(u'\0') + u".grp"_s;
  for (const Mode mode : {Mode::Read, Mode::Write, Mode::Erase, Mode::Create, Mode::Remove}) {
    SharedFile file;
    EXPECT_EQ(file.open(path_, mode), OpenResult::Failed) << "a pipe";
    EXPECT_EQ(file.open(folder_.path(), mode), OpenResult::Failed) << "a folder";
    EXPECT_EQ(file.open(withZero, mode), OpenResult::Failed) << "a zero in the path";
  }
  EXPECT_EQ(readBytes(filePath(u"cut"_s)), "x");
}

TEST_F(SharedFileFixture, openedFileHasNotBeenRemoved) {
  std::atomic<bool> done = false;
  std::thread remover([&] {
    while (!done) {
      SharedFile file;
      EXPECT_TRUE(file.open(path_, Mode::Remove) != OpenResult::Opened || file.remove());
    }
  });
  int opened = 0;
  for (int i = 0; i < 20'000; ++i) {
    SharedFile file;
    if (file.open(path_, Mode::Write) != OpenResult::Opened) continue;
    ++opened;
    if (!QFileInfo::exists(path_)) ADD_FAILURE() << "holds a removed file";
  }
  done = true;
  remover.join();
  EXPECT_GT(opened, 0);
}

}  // namespace
}  // namespace parlexo::test
