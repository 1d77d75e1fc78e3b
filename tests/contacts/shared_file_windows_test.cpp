// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <QCoreApplication>
#include <QProcess>

#include "contacts/shared_file.h"
#include "tests/contacts/store_fixture.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

using Mode = SharedFile::Mode;
using OpenResult = SharedFile::OpenResult;

/// Another process that has a file open until leave().
class Holder {
 public:
  Holder(const QString& path, Mode mode) {
    process_.start(QCoreApplication::applicationDirPath() + u"/shared-file-holder"_s,
                   {path, QString::number(static_cast<int>(mode))});
    EXPECT_TRUE(process_.waitForReadyRead());
    EXPECT_EQ(process_.readLine().trimmed(), "held");
  }
  ~Holder() { leave(); }
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;

  void leave() {
    if (process_.state() == QProcess::NotRunning) return;
    process_.closeWriteChannel();
    EXPECT_TRUE(process_.waitForFinished());
  }

 private:
  QProcess process_;
};

struct SharingBetweenProcesses : StoreFixture {
  SharingBetweenProcesses() { writeBytes(path_, record_); }

  QByteArray record_ = QByteArray("\1Anna1111111", recordSize);
  QString path_ = filePath(u"items.db"_s);
};

TEST_F(SharingBetweenProcesses, modesExcludeOtherProcesses) {
  constexpr auto opened = OpenResult::Opened;
  constexpr auto refused = OpenResult::SharingViolation;
  const struct {
    Mode holder;
    OpenResult results[5];  // for Read, Write, Erase, Create and Remove
  } cases[] = {
      {Mode::Read, {opened, refused, refused, opened, refused}},
      {Mode::Write, {refused, refused, refused, refused, refused}},
      {Mode::Erase, {refused, refused, refused, opened, refused}},
      {Mode::Create, {opened, refused, opened, opened, refused}},
  };
  for (const auto& each : cases) {
    Holder holder(path_, each.holder);
    for (const Mode comer : {Mode::Read, Mode::Write, Mode::Erase, Mode::Create, Mode::Remove}) {
      SharedFile file;
      EXPECT_EQ(file.open(path_, comer), each.results[static_cast<int>(comer)])
          << static_cast<int>(each.holder) << " then " << static_cast<int>(comer);
    }
    holder.leave();
    SharedFile file;
    EXPECT_EQ(file.open(path_, Mode::Write), opened);
  }
}

// Readers on other systems that mount the folder over SMB look like this.
TEST_F(SharingBetweenProcesses, eraserAndALockingReaderExcludeEachOther) {
  constexpr DWORD everything = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE reader = CreateFileW(QDir::toNativeSeparators(path_).toStdWString().c_str(), GENERIC_READ,
                                    everything, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(reader, INVALID_HANDLE_VALUE);
  const auto locks = [reader] {
    OVERLAPPED fromTheStart{};
    return LockFileEx(reader, LOCKFILE_FAIL_IMMEDIATELY, 0, MAXDWORD, MAXLONG, &fromTheStart) != 0;
  };
  SharedFile eraser;
  ASSERT_TRUE(locks());
  EXPECT_EQ(eraser.open(path_, Mode::Erase), OpenResult::SharingViolation);
  EXPECT_TRUE(UnlockFile(reader, 0, 0, MAXDWORD, MAXLONG));
  EXPECT_EQ(eraser.open(path_, Mode::Erase), OpenResult::Opened);
  EXPECT_FALSE(locks());
  EXPECT_TRUE(eraser.write(QByteArrayView("0", 1)));
  eraser.close();
  EXPECT_TRUE(locks());
  CloseHandle(reader);
}

TEST_F(SharingBetweenProcesses, writerWaitsForAReaderUntilTheTimeout) {
  Holder reader(path_, Mode::Read);
  EXPECT_FALSE(database_.writeItem(error_, keyWidth, path_, recordSize, record_, timeout));
  EXPECT_EQ(error_, u"[writeItem:2 - Database access share error!]"_s);
  waiter_.onPause = [&reader] { reader.leave(); };
  error_.clear();
  EXPECT_TRUE(database_.writeItem(error_, keyWidth, path_, recordSize, record_, timeout));
  EXPECT_EQ(error_, QString());
  EXPECT_EQ(readBytes(path_), record_);
}

TEST_F(SharingBetweenProcesses, removalDoesNotCreateTheFile) {
  {
    SharedFile file;
    ASSERT_EQ(file.open(path_, Mode::Remove), OpenResult::Opened);
    EXPECT_TRUE(file.remove());
  }
  EXPECT_FALSE(QFile::exists(path_));
  SharedFile file;
  EXPECT_EQ(file.open(path_, Mode::Remove), OpenResult::Failed);
  EXPECT_FALSE(QFile::exists(path_));
}

TEST_F(SharingBetweenProcesses, allFormsOfAPathAreEquivalent) {
  const QString folder = folder_.filePath(QString::fromUtf8("Gr\u00fc\u00dfe \u4f60\u597d"));
  ASSERT_TRUE(QDir().mkdir(folder));
  const QString file = folder + u"/f.db"_s;
  const QString native = QDir::toNativeSeparators(file);
  writeBytes(file, "12345");
  ASSERT_TRUE(QDir::setCurrent(folder_.path())) << "a path without a drive means that of the current folder";
  // The folder for temporary files may be on a share.
  const bool isOnShare = native.startsWith(u"\\\\"_s);
  const QStringList others = isOnShare ? QStringList(u"\\\\?\\UNC\\"_s + native.mid(2))
                                       : QStringList{u"\\\\?\\"_s + native, native.mid(2)};
  for (const QString& path : QStringList{file, native} + others) {
    SharedFile shared;
    EXPECT_EQ(shared.open(path, Mode::Read), OpenResult::Opened) << path.toStdString();
    EXPECT_EQ(shared.size(), 5) << path.toStdString();
  }
  // On a share "nul" is an ordinary name.
  const QString device = isOnShare ? u"nul"_s : filePath(u"nul"_s);
  for (const QString& path :
       {folder, device, file + QChar(u'\0') + u'x', filePath(u"a*b"_s), filePath(u"none/x"_s)}) {
    SharedFile shared;
    EXPECT_EQ(shared.open(path, Mode::Write), OpenResult::Failed) << path.toStdString();
  }
  QDir::setCurrent(QDir::rootPath());
}

}  // namespace
}  // namespace parlexo::test
