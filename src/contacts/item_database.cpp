#include "contacts/item_database.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <new>
#include <optional>
#include <vector>

#include <QByteArray>

#include "contacts/zero_ended.h"

namespace parlexo {

namespace {

constexpr int lastAttempt = 10;
constexpr int indexTimeout = 30;
// Records are read in blocks of about this many bytes: one system call per record would make reading a
// large database over a network slow.
constexpr qint64 blockBytes = 1 << 20;
constexpr qint64 stateWidth = 1;

// Ends an operation with a message of its own.
struct Failure {
  int number;
  const char* text;
};

// Ends an operation whose message is in the caller's error string already.
struct Reported {};

constexpr char shareError[] = "Database access share error!";
constexpr char outOfMemory[] = "Out of memory!";
constexpr char sizeError[] = "Determine database size error!";
constexpr char positionError[] = "Can't set index position!";
constexpr char unknownError[] = "Unknown error!";

void appendMessage(QString& error, const char* operation, const Failure& failure) {
  error += QStringLiteral("[%1:%2 - %3]")
               .arg(QLatin1String(operation), QString::number(failure.number), QLatin1String(failure.text));
}

// Runs an operation's body and turns what it throws into the operation's message and result.
template <typename Body>
bool perform(QString& error, const char* operation, int unknownNumber, Body body) {
  try {
    body();
    return true;
  } catch (const Failure& failure) {
    appendMessage(error, operation, failure);
  } catch (const Reported&) {
    return false;
  } catch (...) {
    appendMessage(error, operation, {unknownNumber, unknownError});
  }
  return false;
}

void require(bool success, const Failure& failure) {
  if (!success) throw failure;
}

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

qint64 sizeOf(const SharedFile& file, const Failure& failure) {
  const std::optional<qint64> size = file.size();
  require(size.has_value(), failure);
  return *size;
}

std::vector<char> allocate(qint64 size, const Failure& failure) {
  try {
    return std::vector<char>(static_cast<std::size_t>(size), '\0');
  } catch (const std::bad_alloc&) {
    throw failure;
  }
}

// Tells the waiter when its pauses are over.
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

// Hands out the records of a file one after the other. Before the block lies the record that came last, so
// that a short record at the file's end can be filled up from it.
class BlockReader {
 public:
  BlockReader(SharedFile& file, qint64 size, qint64 recordSize)
      : file_(file),
        left_(size),
        recordSize_(recordSize),
        capacity_(std::max<qint64>(1, std::min(blockBytes, size) / recordSize) * recordSize),
        buffer_(allocate(recordSize + capacity_, {4, outOfMemory})) {}

  // The next record, or nothing at the end of the file.
  std::optional<QByteArrayView> next() {
    if (position_ == filled_ && !readBlock()) return std::nullopt;
    const QByteArrayView record(&buffer_[static_cast<std::size_t>(recordSize_ + position_)], recordSize_);
    position_ += recordSize_;
    return record;
  }

 private:
  bool readBlock() {
    const auto previousEnd = buffer_.begin() + recordSize_ + filled_;
    std::copy(previousEnd - recordSize_, previousEnd, buffer_.begin());
    const auto count =
        file_.read(&buffer_[static_cast<std::size_t>(recordSize_)], std::min(left_, capacity_));
    require(count.has_value(), {5, "Read from database error!"});
    left_ -= *count;
    position_ = 0;
    filled_ = *count;
    completeLastRecord();
    return filled_ > 0;
  }

  void completeLastRecord() {
    const qint64 tail = filled_ % recordSize_;
    if (tail == 0) return;
    const auto end = buffer_.begin() + recordSize_ + filled_;
    std::copy(end - recordSize_, end - tail, end);
    filled_ += recordSize_ - tail;
  }

  SharedFile& file_;
  qint64 left_;
  qint64 recordSize_;
  qint64 capacity_;
  std::vector<char> buffer_;
  qint64 position_ = 0;
  qint64 filled_ = 0;
};

}  // namespace

struct ItemDatabase::RecordForm {
  qint64 size;
  qint64 keyWidth;

  [[nodiscard]] QByteArrayView keyOf(QByteArrayView record) const {
    return untilZero(record.sliced(stateWidth, keyWidth));
  }
  [[nodiscard]] qint64 headWidth() const { return stateWidth + keyWidth; }
};

struct ItemDatabase::Lookup {
  bool found;
  qint32 recordNumber;  // -1 when not found
  qint32 entryCount;
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
  return perform(error, "readAllItems", 6, [&] {
    SharedFile file;
    requireOpened(openWithWait(file, path, SharedFile::Mode::Read, timeout), {1, shareError},
                  {2, "Database open error!"});
    const qint64 size = sizeOf(file, {3, sizeError});
    if (size == 0) return;
    BlockReader reader(file, size, recordSize);
    while (const auto record = reader.next()) {
      if (record->front() == recordDeleted && !includeDeleted) continue;
      if (!visitor(*record)) return;
    }
  });
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
  const auto found = index->constFind(key.toByteArray());
  const auto count = static_cast<qint32>(index->size());
  if (found == index->constEnd()) return {false, -1, count};
  return {true, found.value(), count};
}

// An index that could not be read whole stays in the cache: its count no longer fits the file, so that the
// next write of a new key throws it away.
void ItemDatabase::fillIndex(QString& error, ItemIndex& index, const QString& path, const RecordForm& form) {
  qint32 number = 0;
  const auto note = [&](QByteArrayView record) {
    index[form.keyOf(record).toByteArray()] = number++;
    return true;
  };
  if (!readAllItems(error, static_cast<int>(form.size), path, note, indexTimeout, true)) throw Reported();
}

namespace {

enum class Stored { InPlace, Appended };

// Looks for the record's slot from `start` on and stores the record there, or behind the last one.
class ItemStorer {
 public:
  ItemStorer(SharedFile& file, qint64 fileSize, QByteArrayView record, qint64 headWidth)
      : file_(file),
        fileSize_(fileSize),
        record_(inUse(record)),
        headWidth_(headWidth),
        key_(untilZero(record.sliced(stateWidth, headWidth - stateWidth))),
        head_(allocate(headWidth, {7, outOfMemory})) {}

  Stored storeFrom(qint64 start) {
    seek(start, 6);
    for (qint64 position = start; position < fileSize_; position += record_.size()) {
      if (readsOwnKey()) {
        storeAt(position);
        return Stored::InPlace;
      }
      require(file_.seek(position + record_.size()), {12, "Can't read next item in database!"});
    }
    append();
    return Stored::Appended;
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

  // The file stands behind the key of the record at `position`.
  void storeAt(qint64 position) {
    if (head_.front() != ItemDatabase::recordDeleted) {
      require(file_.write(QByteArrayView(record_).sliced(headWidth_)), {9, "Can't write to database!"});
      return;
    }
    seek(position, 10);
    require(file_.write(record_), {11, "Can't write to the database!"});
  }

  // Where the file ends within a record, that one is left incomplete and the next record boundary taken:
  // otherwise all records written from now on would be out of step.
  void append() {
    const qint64 records = (fileSize_ + record_.size() - 1) / record_.size();
    seek(records * record_.size(), 6);
    require(file_.write(record_), {13, "Can't append item to the database!"});
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
  return perform(error, "writeItem", 14, [&] {
    require(!record.isEmpty() && record.size() == recordSize, {1, "Illegal data to write!"});
    const RecordForm form = {recordSize, keyWidth};
    for (int attempt = lastAttempt; attempt >= 0; --attempt)
      if (tryWrite(error, path, record, form, timeout)) return;
    throw Failure{5, "Can't write to database as it is locked by another user!"};
  });
}

// False when the index turned out to be older than the file; it is dropped then.
bool ItemDatabase::tryWrite(QString& error, const QString& path, QByteArrayView record,
                            const RecordForm& form, int timeout) {
  const QByteArrayView key = form.keyOf(record);
  const Lookup lookup = getItemIndex(error, path, key, form);
  SharedFile file;
  requireOpened(openWithWait(file, path, SharedFile::Mode::Write, timeout), {2, shareError},
                {3, "Database open error!"});
  const qint64 size = sizeOf(file, {4, sizeError});
  if (!lookup.found && size / form.size != lookup.entryCount) {
    file.close();
    cache_.dropItemIndex(path);
    return false;
  }
  ItemStorer storer(file, size, record, form.headWidth());
  const qint64 start = lookup.found ? lookup.recordNumber * form.size : size;
  if (storer.storeFrom(start) == Stored::Appended) noteAppended(path, key, lookup);
  return true;
}

// A key that the index knew but the file no longer had tells of a file that was deleted and made anew:
// nothing in the index can be relied on, and a wrong record number would lead to doubled records.
void ItemDatabase::noteAppended(const QString& path, QByteArrayView key, const Lookup& lookup) {
  if (lookup.found) {
    cache_.dropItemIndex(path);
  } else if (const std::shared_ptr<ItemIndex> index = cache_.find(path)) {
    (*index)[key.toByteArray()] = lookup.entryCount;
  }
}

bool ItemDatabase::deleteItem(QString& error, int keyWidth, const QString& path, QByteArrayView key,
                              int recordSize, bool& deleted, int timeout) {
  deleted = false;
  return perform(error, "deleteItem", 9, [&] {
    deleted = eraseItem(error, path, key, {recordSize, keyWidth}, timeout);
  });
}

bool ItemDatabase::eraseItem(QString& error, const QString& path, QByteArrayView key, const RecordForm& form,
                             int timeout) {
  const Lookup lookup = getItemIndex(error, path, key, form);
  if (!lookup.found) return false;
  SharedFile file;
  requireOpened(openWithWait(file, path, SharedFile::Mode::Erase, timeout), {1, shareError}, {2, shareError});
  const qint64 size = sizeOf(file, {3, sizeError});
  qint64 position = lookup.recordNumber * form.size;
  require(file.seek(position), {4, positionError});
  std::vector<char> buffer = allocate(form.size, {5, outOfMemory});
  const QByteArrayView record(buffer.data(), form.size);
  for (; position < size; position += form.size) {
    require(file.read(buffer.data(), form.size).has_value(), {6, "Read item error!"});
    if (record.front() == recordDeleted || form.keyOf(record) != key) continue;
    require(file.seek(position), {7, positionError});
    require(file.write(QByteArrayView(&recordDeleted, stateWidth)), {8, "Can't write item to database!"});
    return true;
  }
  return false;
}

bool ItemDatabase::createDb(QString& error, const QString& path) {
  return perform(error, "createDb", 2, [&] {
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
