// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/status_file.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <iterator>
#include <limits>
#include <map>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QList>
#include <QRegularExpression>
#include <QSaveFile>

#include "base/message_texts.h"
#include "base/notifier.h"
#include "contacts/shared_file.h"
#include "messaging/core/status_document.h"
#include "messaging/core/status_order.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

constexpr auto lockRetryPause = 20ms;
constexpr std::size_t keptBadFiles = 10;

// False when the lock was not to be had in time. Where files can't be locked at all, on a medium that can't
// be written or in a folder without locks, the program goes on without: replacing the file decides.
bool acquireLock(SharedFile& lock, const QString& path, std::chrono::milliseconds atMost) {
  const auto deadline = std::chrono::steady_clock::now() + atMost;
  for (;;) {
    const auto result = lock.open(path + u".lock"_s, SharedFile::Mode::Write);
    if (result != SharedFile::OpenResult::SharingViolation) return true;
    if (std::chrono::steady_clock::now() >= deadline) return false;
    std::this_thread::sleep_for(lockRetryPause);
  }
}

// "Status.xml.7.bad" by its number. "Status.xml.bad", the only name of earlier versions, counts as the
// oldest.
std::map<int, QString> badFiles(const QFileInfo& file) {
  const QRegularExpression form(
      u"^%1(?:\\.([0-9]{1,9}))?\\.bad$"_s.arg(QRegularExpression::escape(file.fileName())));
  std::map<int, QString> found;
  for (const QString& name : file.dir().entryList(QDir::Files | QDir::Hidden | QDir::System)) {
    const QRegularExpressionMatch match = form.match(name);
    if (match.hasMatch()) found.emplace(match.capturedView(1).toInt(), file.dir().filePath(name));
  }
  return found;
}

void removeOldest(std::map<int, QString> files) {
  for (; files.size() > keptBadFiles; files.erase(files.begin())) QFile::remove(files.begin()->second);
}

// Compares the lines in any order: two saves of the same entries may write them in different orders.
bool holdsSameLines(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  const bool mayBeSame = QFileInfo(path).isFile() && file.size() == bytes.size();
  if (!mayBeSame || !file.open(QIODevice::ReadOnly)) return false;
  const auto sortedLines = [](const QByteArray& text) {
    QList<QByteArray> lines = text.split('\n');
    std::sort(lines.begin(), lines.end());
    return lines;
  };
  return sortedLines(file.readAll()) == sortedLines(bytes);
}

// A copy, so that the file is still there when the disk has no room for its replacement. One that can't be
// read can only be renamed. A status with a quotation mark makes a file that is rejected at every start: that
// must not push copies of other files out.
bool keepAsBad(const QString& path, const StatusFile::FileContent& content) {
  const QFileInfo file(path);
  const bool isRead = content.error.isEmpty();
  std::map<int, QString> files = badFiles(file);
  if (isRead && !files.empty() && holdsSameLines(files.rbegin()->second, content.bytes)) return true;
  const int number = files.empty() ? 1 : files.rbegin()->first + 1;
  const QString kept = u"%1.%2.bad"_s.arg(path).arg(number);
  if (!(isRead ? QFile::copy(path, kept) : QFile::rename(path, kept))) return false;
  files.emplace(number, kept);
  removeOldest(std::move(files));
  return true;
}

QString faultText(const QString& path, const QString& fault) {
  return u"The status file %1 cannot be read: %2"_s.arg(path, fault);
}

QString recoveryText(std::size_t count) {
  return count == 1 ? u"1 entry was brought back."_s : u"%1 entries were brought back."_s.arg(count);
}

// Orders entries by age. Those of the same second go by receipt, so that all programs choose the same.
struct Age {
  std::time_t instant;
  QStringView receipt;

  bool operator<(const Age& other) const {
    return instant != other.instant ? instant < other.instant : receipt < other.receipt;
  }
};

Age ageOf(const StatusEntry& entry) {
  return {statusInstant(entry.date), entry.receipt};
}

// The newest entries first.
std::vector<StatusEntry> newestEntries(const StatusLog& log, std::size_t count) {
  struct Row {
    Age age;
    const StatusEntry* entry;
  };
  std::vector<Row> rows;
  rows.reserve(log.entries().size());
  QHash<QString, std::time_t> instants;  // the recipients of a message have one date, and mktime() is slow
  for (const auto& [receipt, entry] : log.entries()) {
    if (!instants.contains(entry.date)) instants.insert(entry.date, statusInstant(entry.date));
    rows.push_back({{instants.value(entry.date), receipt}, &entry});
  }
  const auto end = rows.begin() + static_cast<std::ptrdiff_t>(std::min(rows.size(), count));
  std::partial_sort(rows.begin(), end, rows.end(), [](const Row& a, const Row& b) { return b.age < a.age; });
  std::vector<StatusEntry> entries;
  std::transform(rows.begin(), end, std::back_inserter(entries), [](const Row& row) { return *row.entry; });
  return entries;
}

std::vector<StatusEntry> entriesToWrite(const StatusLog& log) {
  if (log.entries().size() > StatusFile::elementsRead) return newestEntries(log, StatusFile::entriesWritten);
  std::vector<StatusEntry> entries;
  entries.reserve(log.entries().size());
  for (const auto& [receipt, entry] : log.entries()) entries.push_back(entry);
  return entries;
}

// Nothing when there is no file. A pipe or a device is not opened, as reading it might never end.
std::optional<StatusFile::FileContent> readContent(const QString& path) {
  const QFileInfo info(path);
  if (!info.exists()) return std::nullopt;
  if (!info.isFile()) return StatusFile::FileContent{{}, u"It is not a file."_s};
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return StatusFile::FileContent{{}, file.errorString()};
  if (file.size() > StatusFile::mostBytes) return StatusFile::FileContent{{}, u"It is larger than 32 MB."_s};
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) return StatusFile::FileContent{{}, file.errorString()};
  return StatusFile::FileContent{bytes, {}};
}

// Reading needs no lock, but on Windows a file that is open here could not be replaced by another program.
std::optional<StatusFile::FileContent> readUnderLock(const QString& path,
                                                     std::chrono::milliseconds lockWait) {
  SharedFile lock;
  (void)acquireLock(lock, path, lockWait);
  return readContent(path);
}

// Of an entry that is missing in a file with the entries `present`. A full file, whose last entry is its
// oldest, has no room for older ones: these were not deleted.
bool hadRoomFor(const StatusEntry& missing, const std::vector<StatusEntry>& present) {
  return present.size() < StatusFile::entriesWritten || !(ageOf(missing) < ageOf(present.back()));
}

// False when the document has a fault: an entry that is missing in it may not have been deleted.
bool mergeDocument(StatusLog& log, const QByteArray& bytes) {
  auto own = readOwnStatusDocument(bytes);
  const StatusDocument document =
      own ? StatusDocument{std::move(*own), {}} : readStatusDocument(bytes, std::numeric_limits<int>::max());
  const bool isWhole = document.fault.isEmpty();
  log.merge(document.entries,
            [&](const StatusEntry& missing) { return isWhole && hadRoomFor(missing, document.entries); });
  return isWhole;
}

bool replaceFile(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
         file.commit();
}

}  // namespace

void StatusFile::load(StatusLog& log, Notifier& notifier) {
  log.load({});
  rejected_.clear();
  const std::optional<FileContent> content = readUnderLock(path_, lockWaits_.deferred);
  if (!content) return notifier.warning(text(TextId::StatusFileMissing));
  if (!content->error.isEmpty()) return notifier.error(faultText(path_, content->error));
  StatusDocument document = readStatusDocument(content->bytes, elementsRead);
  const std::size_t count = document.entries.size();
  log.load(std::move(document.entries));
  if (document.fault.isEmpty()) return;
  rejected_ = content->bytes;
  notifier.error(faultText(path_, document.fault) + u"\n\n"_s + recoveryText(count));
}

bool StatusFile::save(StatusLog& log, IfLocked ifLocked) {
  SharedFile lock;
  const bool mayDefer = ifLocked == IfLocked::Defer;
  if (!acquireLock(lock, path_, mayDefer ? lockWaits_.deferred : lockWaits_.last) && mayDefer) return false;
  // That the whole file has gone does not mean that its entries were deleted: the medium may be another one.
  const std::optional<FileContent> content = readContent(path_);
  if (content && !mergeAndKeepRejected(log, *content)) return false;
  std::vector<StatusEntry> entries = entriesToWrite(log);
  if (!replaceFile(path_, writeStatusDocument(entries))) return false;
  log.markSaved(std::move(entries));
  return true;
}

bool StatusFile::mergeAndKeepRejected(StatusLog& log, const FileContent& content) {
  const bool isRejected = !content.error.isEmpty() || !mergeDocument(log, content.bytes) ||
                          (!rejected_.isEmpty() && content.bytes == rejected_);
  if (!isRejected) return true;
  if (!keepAsBad(path_, content)) return false;
  rejected_.clear();
  return true;
}

}  // namespace parlexo
