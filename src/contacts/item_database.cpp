// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/item_database.h"

#include <memory>
#include <new>
#include <vector>

#include "contacts/database_operation.h"

namespace parlexo {

namespace {

constexpr int lastAttempt = 10;
constexpr int indexTimeout = 30;
constexpr qint64 stateWidth = 1;

constexpr char shareError[] = "Database access share error!";
constexpr char outOfMemory[] = "Out of memory!";
constexpr char sizeError[] = "Determine database size error!";
constexpr char positionError[] = "Can't set index position!";

void requireOpened(SharedFile::OpenResult result, const Failure& shared, const Failure& failed) {
  switch (result) {
    case SharedFile::OpenResult::Opened:
      return;
    case SharedFile::OpenResult::SharingViolation:
      throw shared;
    case SharedFile::OpenResult::Failed:
      throw failed;
  }
}

qint64 requireSize(const SharedFile& file, const Failure& failure) {
  const std::optional<qint64> size = file.size();
  require(size.has_value(), failure);
  return *size;
}

// Notifies the waiter after its last pause.
class Wait {
 public:
  explicit Wait(LockWaiter& waiter) : waiter_(waiter) {}
  ~Wait() {
    if (hasPaused_) waiter_.waitIsOver();
  }
  Wait(const Wait&) = delete;
  Wait& operator=(const Wait&) = delete;

  void pause() {
    hasPaused_ = true;
    waiter_.pause();
  }

 private:
  LockWaiter& waiter_;
  bool hasPaused_ = false;
};

}  // namespace

struct ItemDatabase::RecordForm {
  qint64 size;
  qint64 keyWidth;

  [[nodiscard]] QByteArrayView key(QByteArrayView record) const {
    return untilZero(record.sliced(stateWidth, keyWidth));
  }
  [[nodiscard]] qint64 headWidth() const { return stateWidth + keyWidth; }
};

struct ItemDatabase::Lookup {
  bool found;
  qint32 recordNumber;  // -1 when not found
  qint32 recordCount;   // complete records in the file according to the index
};

ItemDatabase::ItemDatabase(ItemIndexCache& cache, LockWaiter& waiter) : cache_(cache), waiter_(waiter) {}

SharedFile::OpenResult ItemDatabase::openWithWait(SharedFile& file, const QString& path,
                                                  SharedFile::Mode mode, int timeout) {
  const qint64 start = waiter_.nowSeconds();
  Wait wait(waiter_);
  for (;;) {
    const SharedFile::OpenResult result = file.open(path, mode);
    if (result != SharedFile::OpenResult::SharingViolation) return result;
    if (waiter_.nowSeconds() - start > timeout) return result;
    wait.pause();
  }
}

bool ItemDatabase::readAllItems(QString& error, int recordSize, const QString& path, const Visitor& visitor,
                                int timeout, bool includeDeleted) {
  return runOperation(error, "readAllItems", 6, [&] {
    readRecords(path, recordSize, timeout, [&](const BlockReader::Record& record) {
      return (record.bytes.front() == recordDeleted && !includeDeleted) || visitor(record.bytes);
    });
  });
}

// Throws the failures of readAllItems().
void ItemDatabase::readRecords(const QString& path, qint64 recordSize, int timeout,
                               const std::function<bool(const BlockReader::Record&)>& visit) {
  SharedFile file;
  requireOpened(openWithWait(file, path, SharedFile::Mode::Read, timeout), {1, shareError},
                {2, "Database open error!"});
  const qint64 size = requireSize(file, {3, sizeError});
  if (size == 0) return;
  BlockReader reader(file, size, recordSize, {{4, outOfMemory}, {5, "Read from database error!"}});
  while (const auto record = reader.next())
    if (!visit(*record)) return;
}

ItemDatabase::Lookup ItemDatabase::getItemIndex(QString& error, const QString& path, QByteArrayView key,
                                                const RecordForm& form) {
  std::shared_ptr<ItemIndex> index = cache_.find(path);
  if (!index) {
    try {
      index = cache_.create(path);
    } catch (const std::bad_alloc&) {
      appendMessage(error, "getItemIndex", {1, outOfMemory});
      throw Reported();
    }
    fillIndex(error, *index, path, form);
  }
  const auto found = index->recordNumbers.constFind(key.toByteArray());
  if (found == index->recordNumbers.constEnd()) return {false, -1, index->recordCount};
  return {true, found.value(), index->recordCount};
}

// An incomplete index stays in the cache. Its count does not match the file, so the next write of a new key
// discards it.
void ItemDatabase::fillIndex(QString& error, ItemIndex& index, const QString& path, const RecordForm& form) {
  qint32 number = 0;
  const auto add = [&](const BlockReader::Record& record) {
    index.recordNumbers[form.key(record.bytes).toByteArray()] = number++;
    if (record.isWhole) ++index.recordCount;
    return true;
  };
  if (!runOperation(error, "readAllItems", 6, [&] { readRecords(path, form.size, indexTimeout, add); }))
    throw Reported();
}

namespace {

// Searches for the record's slot from `start` on and stores the record there, or appends it.
class ItemStorer {
 public:
  ItemStorer(SharedFile& file, qint64 fileSize, QByteArrayView record, qint64 headWidth)
      : file_(file),
        fileSize_(fileSize),
        record_(inUse(record)),
        headWidth_(headWidth),
        key_(untilZero(record.sliced(stateWidth, headWidth - stateWidth))),
        head_(allocate(headWidth, {7, outOfMemory})) {}

  // Returns the number of the record if it was appended.
  std::optional<qint64> storeFrom(qint64 start) {
    seek(start, 6);
    for (qint64 position = start; position < fileSize_; position += record_.size()) {
      if (readsOwnKey()) {
        storeAt(position);
        return std::nullopt;
      }
      require(file_.seek(position + record_.size()), {12, "Can't read next item in database!"});
    }
    return append();
  }

 private:
  static QByteArray inUse(QByteArrayView record) {
    QByteArray copy = record.toByteArray();
    copy[0] = ItemDatabase::recordInUse;
    return copy;
  }

  void seek(qint64 position, int number) { require(file_.seek(position), {number, positionError}); }

  bool readsOwnKey() {
    const std::optional<qint64> count = file_.read(head_.data(), headWidth_);
    require(count.has_value(), {8, "Can't read from database!"});
    const QByteArrayView head(head_.data(), headWidth_);
    return *count == headWidth_ && untilZero(head.sliced(stateWidth)) == key_;
  }

  // The file position is after the key of the record at `position`.
  void storeAt(qint64 position) {
    if (head_.front() != ItemDatabase::recordDeleted) {
      require(file_.write(QByteArrayView(record_).sliced(headWidth_)), {9, "Can't write to database!"});
      return;
    }
    seek(position, 10);
    require(file_.write(record_), {11, "Can't write to the database!"});
  }

  // Appends at a record boundary even if the last record is incomplete. All later records would be misaligned
  // otherwise.
  qint64 append() {
    const qint64 records = (fileSize_ + record_.size() - 1) / record_.size();
    seek(records * record_.size(), 6);
    require(file_.write(record_), {13, "Can't append item to the database!"});
    return records;
  }

  SharedFile& file_;
  qint64 fileSize_;
  QByteArray record_;
  qint64 headWidth_;
  QByteArrayView key_;
  std::vector<char> head_;
};

}  // namespace

bool ItemDatabase::writeItem(QString& error, int keyWidth, const QString& path, int recordSize,
                             QByteArrayView record, int timeout) {
  return runOperation(error, "writeItem", 14, [&] {
    require(!record.isEmpty() && record.size() == recordSize, {1, "Illegal data to write!"});
    const RecordForm form = {recordSize, keyWidth};
    for (int attempt = lastAttempt; attempt >= 0; --attempt)
      if (tryWrite(error, path, record, form, timeout)) return;
    throw Failure{5, "Can't write to database as it is locked by another user!"};
  });
}

// Returns false, after dropping the index, if the index is older than the file.
bool ItemDatabase::tryWrite(QString& error, const QString& path, QByteArrayView record,
                            const RecordForm& form, int timeout) {
  const QByteArrayView key = form.key(record);
  const Lookup lookup = getItemIndex(error, path, key, form);
  SharedFile file;
  requireOpened(openWithWait(file, path, SharedFile::Mode::Write, timeout), {2, shareError},
                {3, "Database open error!"});
  const qint64 size = requireSize(file, {4, sizeError});
  if (!lookup.found && size / form.size != lookup.recordCount) {
    file.close();
    cache_.dropItemIndex(path);
    return false;
  }
  ItemStorer storer(file, size, record, form.headWidth());
  const qint64 start = lookup.found ? lookup.recordNumber * form.size : size;
  if (const auto appended = storer.storeFrom(start)) updateIndex(path, key, lookup, *appended);
  return true;
}

// The index does not match the file if the record was not appended after the last indexed one. Either an
// indexed key was missing because the file was deleted and created again, or an incomplete last record has
// been replaced by another key. Wrong record numbers would cause duplicate records.
void ItemDatabase::updateIndex(const QString& path, QByteArrayView key, const Lookup& lookup,
                               qint64 appendedNumber) {
  const std::shared_ptr<ItemIndex> index = cache_.find(path);
  if (lookup.found || appendedNumber != lookup.recordCount) {
    cache_.dropItemIndex(path);
  } else if (index) {
    index->recordNumbers[key.toByteArray()] = lookup.recordCount;
    index->recordCount = lookup.recordCount + 1;
  }
}

bool ItemDatabase::deleteItem(QString& error, int keyWidth, const QString& path, QByteArrayView key,
                              int recordSize, bool& deleted, int timeout) {
  deleted = false;
  return runOperation(error, "deleteItem", 9, [&] {
    deleted = eraseItem(error, path, key, {recordSize, keyWidth}, timeout);
  });
}

bool ItemDatabase::eraseItem(QString& error, const QString& path, QByteArrayView key, const RecordForm& form,
                             int timeout) {
  const Lookup lookup = getItemIndex(error, path, key, form);
  if (!lookup.found) return false;
  SharedFile file;
  requireOpened(openWithWait(file, path, SharedFile::Mode::Erase, timeout), {1, shareError}, {2, shareError});
  const qint64 size = requireSize(file, {3, sizeError});
  qint64 position = lookup.recordNumber * form.size;
  require(file.seek(position), {4, positionError});
  std::vector<char> buffer = allocate(form.size, {5, outOfMemory});
  const QByteArrayView record(buffer.data(), form.size);
  for (; position < size; position += form.size) {
    require(file.read(buffer.data(), form.size).has_value(), {6, "Read item error!"});
    if (record.front() == recordDeleted || form.key(record) != key) continue;
    require(file.seek(position), {7, positionError});
    require(file.write(QByteArrayView(&recordDeleted, stateWidth)), {8, "Can't write item to database!"});
    return true;
  }
  return false;
}

bool ItemDatabase::deleteItems(QString& error, int keyWidth, const QString& path, int recordSize,
                               const KeyFinder& findKeys, int timeout) {
  return runOperation(error, "deleteItem", 9, [&] {
    SharedFile file;
    requireOpened(openWithWait(file, path, SharedFile::Mode::Erase, timeout), {1, shareError},
                  {2, shareError});
    const auto keys = findKeys(error);
    if (!keys) throw Reported();
    if (!keys->isEmpty()) markDeleted(file, *keys, {recordSize, keyWidth});
  });
}

// Throws the failures of deleteItem(). Marks adjacent records with one write, because every write waits for
// the storage while the file is locked.
void ItemDatabase::markDeleted(SharedFile& file, const QSet<QByteArray>& keys, const RecordForm& form) {
  struct Run {
    qint64 position;
    QByteArray bytes;
  };
  const qint64 size = requireSize(file, {3, sizeError});
  if (size == 0) return;
  BlockReader reader(file, size, form.size, {{5, outOfMemory}, {6, "Read item error!"}});
  std::vector<Run> runs;
  for (qint64 position = 0; const auto record = reader.next(); position += form.size) {
    const bool isInUse = record->bytes.front() != recordDeleted;
    if (!isInUse || !keys.contains(form.key(record->bytes).toByteArray())) continue;
    if (runs.empty() || runs.back().position + runs.back().bytes.size() != position)
      runs.push_back({position, {}});
    runs.back().bytes.append(recordDeleted).append(record->bytes.sliced(stateWidth));
  }
  for (Run& run : runs) {
    // The last record may be incomplete. It must not become longer.
    run.bytes.chop(form.size - stateWidth);
    require(file.seek(run.position), {7, positionError});
    require(file.write(run.bytes), {8, "Can't write item to database!"});
  }
}

bool ItemDatabase::createDb(QString& error, const QString& path) {
  return runOperation(error, "createDb", 2, [&] {
    SharedFile file;
    const bool failed = file.open(path, SharedFile::Mode::Create) == SharedFile::OpenResult::Failed;
    require(!failed, {1, "Can't create the database!"});
  });
}

bool ItemDatabase::removeDb(const QString& path) {
  SharedFile file;
  if (file.open(path, SharedFile::Mode::Remove) != SharedFile::OpenResult::Opened) return false;
  if (!file.remove()) return false;
  cache_.dropItemIndex(path);
  return true;
}

}  // namespace parlexo
