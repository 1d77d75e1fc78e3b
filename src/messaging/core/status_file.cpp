// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/status_file.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <ctime>
#include <functional>
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
constexpr std::size_t maxBadFiles = 10;

// Returns false after `timeout`. Succeeds without a lock if the lock file can't be opened, as on a read-only
// medium or a file system without locks: replacing the file then succeeds or fails.
bool acquireLock(SharedFile& lock, const QString& path, std::chrono::milliseconds timeout) {
  const auto deadline = std::chrono::steady_clock::now() + timeout;
  for (;;) {
    const auto result = lock.open(path + u".lock"_s, SharedFile::Mode::Write);
    if (result != SharedFile::OpenResult::SharingViolation) return true;
    if (std::chrono::steady_clock::now() >= deadline) return false;
    std::this_thread::sleep_for(lockRetryPause);
  }
}

// The files named like "Status.xml.7.bad", by number. "Status.xml.bad", the only name in earlier versions,
// has the number 0.
std::map<int, QString> badFiles(const QFileInfo& file) {
  const QRegularExpression form(
      u"^%1(?:\\.([0-9]{1,9}))?\\.bad$"_s.arg(QRegularExpression::escape(file.fileName())));
  std::map<int, QString> files;
  for (const QString& name : file.dir().entryList(QDir::Files | QDir::Hidden | QDir::System)) {
    const QRegularExpressionMatch match = form.match(name);
    if (match.hasMatch()) files.emplace(match.capturedView(1).toInt(), file.dir().filePath(name));
  }
  return files;
}

void removeOldest(std::map<int, QString> files) {
  for (; files.size() > maxBadFiles; files.erase(files.begin())) QFile::remove(files.begin()->second);
}

// Compares the lines in any order, because the order of the entries can differ between saves.
bool hasSameLines(const QString& path, const QByteArray& bytes) {
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

// Copies the file instead of renaming it, so that it remains if the disk is too full for its replacement. An
// unreadable file can only be renamed. Does nothing if the last backup has the same contents: a status with a
// quotation mark causes the file to be rejected at every start, and its copies must not displace those of
// other files.
bool backUpRejected(const QString& path, const StatusFile::FileContent& content) {
  const QFileInfo file(path);
  const bool isRead = content.error.isEmpty();
  std::map<int, QString> files = badFiles(file);
  if (isRead && !files.empty() && hasSameLines(files.rbegin()->second, content.bytes)) return true;
  const int number = files.empty() ? 1 : files.rbegin()->first + 1;
  const QString backup = u"%1.%2.bad"_s.arg(path, QString::number(number));
  if (!(isRead ? QFile::copy(path, backup) : QFile::rename(path, backup))) return false;
  files.emplace(number, backup);
  removeOldest(std::move(files));
  return true;
}

QString unreadableText(const QString& path, const QString& error) {
  return StatusFile::tr("The status file %1 cannot be read: %2").arg(path, error);
}

QString recoveryText(std::size_t count) {
  return count == 1 ? StatusFile::tr("1 entry was brought back.")
                    : StatusFile::tr("%1 entries were brought back.").arg(count);
}

// Orders entries by instant, then by receipt, so all programs order entries of the same second alike.
using Age = std::pair<std::time_t, QStringView>;

Age entryAge(const StatusEntry& entry) {
  return {statusInstant(entry.date), entry.receipt};
}

// The newest entries first.
std::vector<StatusEntry> newestEntries(const StatusLog& log, std::size_t count) {
  using Row = std::pair<Age, const StatusEntry*>;  // receipts are unique, so the pointers are never compared
  std::vector<Row> rows;
  rows.reserve(log.entries().size());
  QHash<QString, std::time_t> instants;  // mktime() is slow, and all recipients of a message share one date
  for (const auto& [receipt, entry] : log.entries()) {
    if (!instants.contains(entry.date)) instants.insert(entry.date, statusInstant(entry.date));
    rows.emplace_back(Age(instants.value(entry.date), receipt), &entry);
  }
  const auto end = rows.begin() + static_cast<std::ptrdiff_t>(std::min(rows.size(), count));
  std::partial_sort(rows.begin(), end, rows.end(), std::greater<>());
  std::vector<StatusEntry> entries;
  std::transform(rows.begin(), end, std::back_inserter(entries), [](const Row& row) { return *row.second; });
  return entries;
}

std::vector<StatusEntry> entriesToWrite(const StatusLog& log) {
  if (log.entries().size() > StatusFile::elementsRead) return newestEntries(log, StatusFile::entriesWritten);
  std::vector<StatusEntry> entries;
  entries.reserve(log.entries().size());
  for (const auto& [receipt, entry] : log.entries()) entries.push_back(entry);
  return entries;
}

// Returns nullopt if there is no file. Does not open pipes and devices, because reading them could block.
std::optional<StatusFile::FileContent> readContent(const QString& path) {
  const QFileInfo info(path);
  if (!info.exists()) return std::nullopt;
  if (!info.isFile()) return StatusFile::FileContent{{}, StatusFile::tr("It is not a file.")};
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return StatusFile::FileContent{{}, file.errorString()};
  if (file.size() > StatusFile::maxBytes)
    return StatusFile::FileContent{{}, StatusFile::tr("It is larger than 32 MB.")};
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) return StatusFile::FileContent{{}, file.errorString()};
  return StatusFile::FileContent{bytes, {}};
}

// Locks, because on Windows another program can't replace the file while it is open here.
std::optional<StatusFile::FileContent> readUnderLock(const QString& path,
                                                     std::chrono::milliseconds lockWait) {
  SharedFile lock;
  (void)acquireLock(lock, path, lockWait);
  return readContent(path);
}

// Returns true if another program has deleted `missing` from a file with the entries `present`. A full file
// ends with its oldest entry; entries older than that did not fit.
bool wasDeleted(const StatusEntry& missing, const std::vector<StatusEntry>& present) {
  return present.size() < StatusFile::entriesWritten || !(entryAge(missing) < entryAge(present.back()));
}

// Returns false if the document is malformed. In that case, missing entries are not treated as deleted.
bool mergeDocument(StatusLog& log, const QByteArray& bytes) {
  auto own = readOwnStatusDocument(bytes);
  const StatusDocument document =
      own ? StatusDocument{std::move(*own), {}} : readStatusDocument(bytes, std::numeric_limits<int>::max());
  const bool isWellFormed = document.error.isEmpty();
  log.merge(document.entries, [&](const StatusEntry& missing) {
    return isWellFormed && wasDeleted(missing, document.entries);
  });
  return isWellFormed;
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
  if (!content->error.isEmpty()) return notifier.error(unreadableText(path_, content->error));
  StatusDocument document = readStatusDocument(content->bytes, elementsRead);
  const std::size_t count = document.entries.size();
  log.load(std::move(document.entries));
  if (document.error.isEmpty()) return;
  rejected_ = content->bytes;
  notifier.error(unreadableText(path_, document.error) + u"\n\n"_s + recoveryText(count));
}

bool StatusFile::save(StatusLog& log, IfLocked ifLocked) {
  SharedFile lock;
  const bool mayDefer = ifLocked == IfLocked::Defer;
  if (!acquireLock(lock, path_, mayDefer ? lockWaits_.deferred : lockWaits_.last) && mayDefer) return false;
  // A missing file does not mean that its entries were deleted: the medium may have been exchanged.
  const std::optional<FileContent> content = readContent(path_);
  if (content && !mergeContent(log, *content)) return false;
  std::vector<StatusEntry> entries = entriesToWrite(log);
  if (!replaceFile(path_, writeStatusDocument(entries))) return false;
  log.markSaved(std::move(entries));
  return true;
}

bool StatusFile::mergeContent(StatusLog& log, const FileContent& content) {
  const bool isRejected = !content.error.isEmpty() || !mergeDocument(log, content.bytes) ||
                          (!rejected_.isEmpty() && content.bytes == rejected_);
  if (!isRejected) return true;
  if (!backUpRejected(path_, content)) return false;
  rejected_.clear();
  return true;
}

}  // namespace parlexo
