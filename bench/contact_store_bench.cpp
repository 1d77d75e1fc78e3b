// What the contact store costs as it grows, beside an SQLite database that does the same work on the same
// disk, and beside the bare system calls without which no durable write is possible.

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

#include <array>
#include <memory>
#include <unordered_map>

#include <QByteArray>
#include <QFile>
#include <benchmark/benchmark.h>

#include "bench/bench_folder.h"
#include "bench/sqlite_book.h"
#include "contacts/address_book.h"
#include "contacts/contact_file_format.h"
#include "contacts/item_database.h"

namespace parlexo {
namespace {

constexpr int thousand = 1'000;
constexpr int million = 1'000'000;
constexpr int waitSeconds = 60;

const QString contactsFile = QStringLiteral("All Contacts.all_grp");

int sizeOf(const benchmark::State& state) {
  return static_cast<int>(state.range(0));
}

void loadStore(benchmark::State& state) {
  const BenchFolder& folder = BenchFolder::of(sizeOf(state));
  MessageCounter notifier;
  NoProgress progress;
  SleepingLockWaiter waiter;
  for (auto step : state) {
    ItemIndexCache cache;
    ItemDatabase database(cache, waiter);
    AddressBook book(folder.path(), database, notifier);
    const bool isWhole = book.loadAll(progress) && notifier.count == 0 &&
                         book.contacts().size() >= std::size_t(sizeOf(state)) &&
                         book.groups().size() == groupTotal + 1;
    state.PauseTiming();
    book.clear();
    state.ResumeTiming();
    if (!isWhole) return state.SkipWithError("the address book was not read whole");
  }
}

const SqliteBook& sqliteOf(int contactTotal) {
  static std::unordered_map<int, std::unique_ptr<SqliteBook>> books;
  auto& book = books[contactTotal];
  if (!book) {
    const QString path = BenchFolder::of(contactTotal).file(QStringLiteral("book.sqlite"));
    book = std::make_unique<SqliteBook>(QFile::encodeName(path));
    book->fill(contactTotal, groupTotal);
  }
  return *book;
}

void loadSqlite(benchmark::State& state) {
  const SqliteBook& database = sqliteOf(sizeOf(state));
  for (auto step : state) {
    auto book = std::make_unique<SqliteBook::Contents>(database.load());
    const bool isWhole =
        book->contacts.size() >= std::size_t(sizeOf(state)) && book->groups.size() == groupTotal + 1;
    state.PauseTiming();
    book.reset();
    state.ResumeTiming();
    if (!isWhole) return state.SkipWithError("the database was not read whole");
  }
}

// The contact of a save: one that is there, with a new phone number each time, or a new one each time.
class NextContact {
 public:
  explicit NextContact(bool isNew) : isNew_(isNew), contact_(sampleContacts(1).front()) {}

  const ContactRecord& operator()() {
    static int number = 0;
    ++number;
    if (isNew_) contact_.name = QStringLiteral("New contact %1").arg(number);
    contact_.phone = QStringLiteral("+%1").arg(number);
    return contact_;
  }

 private:
  bool isNew_;
  ContactRecord contact_;
};

void saveInStore(benchmark::State& state, bool isNew) {
  const QString path = BenchFolder::of(sizeOf(state)).file(contactsFile);
  SleepingLockWaiter waiter;
  ItemIndexCache cache;
  ItemDatabase database(cache, waiter);
  NextContact next(isNew);
  QString error;
  const auto save = [&] {
    return database.writeItem(error, nameWidth, path, contactRecordSize, packContact(next()), waitSeconds);
  };
  // The first one reads the index, which the program does once in a run.
  if (!save()) return state.SkipWithError(qPrintable(error));
  for (auto step : state)
    if (!save()) return state.SkipWithError(qPrintable(error));
}

void saveInSqlite(benchmark::State& state, bool isNew) {
  const SqliteBook& database = sqliteOf(sizeOf(state));
  NextContact next(isNew);
  for (auto step : state)
    if (!database.save(next())) return state.SkipWithError("not saved");
}

// The least that a durable write of one record can be.
void bareWrite(benchmark::State& state, bool atEnd) {
  const QByteArray path = QFile::encodeName(BenchFolder::of(sizeOf(state)).file(QStringLiteral("bare")));
  const std::array<char, contactRecordSize> record = {1};
  if (!QFile::exists(QFile::decodeName(path)))
    QFile::copy(BenchFolder::of(sizeOf(state)).file(contactsFile), QFile::decodeName(path));
  for (auto step : state) {
    const int handle = ::open(path.constData(), O_RDWR | O_DSYNC | O_CLOEXEC);
    ::lseek(handle, 0, atEnd ? SEEK_END : SEEK_SET);
    const auto written = ::write(handle, record.data(), record.size());
    ::close(handle);
    if (written != contactRecordSize) return state.SkipWithError("not written");
  }
}

std::size_t memoryInUse() {
  const auto info = ::mallinfo2();
  return info.uordblks + info.hblkhd;
}

std::size_t keyBytes(const ItemIndex& index) {
  std::size_t total = 0;
  for (auto entry = index.keyBegin(); entry != index.keyEnd(); ++entry)
    total += static_cast<std::size_t>(entry->size());
  return total;
}

void buildIndex(benchmark::State& state) {
  const QString path = BenchFolder::of(sizeOf(state)).file(contactsFile);
  SleepingLockWaiter waiter;
  ItemIndexCache cache;
  ItemDatabase database(cache, waiter);
  QString error;
  double bytesEach = 0;
  for (auto step : state) {
    state.PauseTiming();
    cache.dropAllItemIndexes();
    const std::size_t before = memoryInUse();
    state.ResumeTiming();
    bool deleted = false;
    // Looking a missing key up needs the index and nothing else.
    if (!database.deleteItem(error, nameWidth, path, "no such key", contactRecordSize, deleted, waitSeconds))
      return state.SkipWithError(qPrintable(error));
    state.PauseTiming();
    const ItemIndex& index = *cache.find(path);
    bytesEach = double(memoryInUse() - before - keyBytes(index)) / double(index.size());
    state.ResumeTiming();
  }
  state.counters["bytes_per_record"] = bytesEach;
}

void sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->RangeMultiplier(10)->Range(thousand, million)->UseRealTime();
}

// Loading and indexing first: the savings add contacts.
BENCHMARK(loadStore)->Apply(sizes)->Unit(benchmark::kMillisecond);
BENCHMARK(loadSqlite)->Apply(sizes)->Unit(benchmark::kMillisecond);
BENCHMARK(buildIndex)->Apply(sizes)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(saveInStore, existing, false)->Apply(sizes)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(saveInSqlite, existing, false)->Apply(sizes)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bareWrite, existing, false)->Apply(sizes)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(saveInStore, fresh, true)->Apply(sizes)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(saveInSqlite, fresh, true)->Apply(sizes)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(bareWrite, fresh, true)->Apply(sizes)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace parlexo
