// SPDX-License-Identifier: GPL-3.0-or-later
// Measures the contact store by size, in comparison with an SQLite database that does the same work on the
// same disk, and with the minimum of system calls for a durable write.

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <random>
#include <unordered_map>
#include <vector>

#include <QByteArray>
#include <QFile>
#include <benchmark/benchmark.h>

#include "bench/bench_folder.h"
#include "bench/sqlite_book.h"
#include "contacts/address_book.h"
#include "contacts/contact_file_format.h"
#include "contacts/item_database.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int thousand = 1'000;
constexpr int million = 1'000'000;
constexpr int waitSeconds = 60;

const QString contactsFile = u"All Contacts.all_grp"_s;

int contactTotal(const benchmark::State& state) {
  return static_cast<int>(state.range(0));
}

void loadStore(benchmark::State& state) {
  const BenchFolder& folder = BenchFolder::withContacts(contactTotal(state));
  NoProgress progress;
  SleepingLockWaiter waiter;
  for (auto step : state) {
    ItemIndexCache cache;
    ItemDatabase database(cache, waiter);
    AddressBook book(folder.path(), database);
    int errors = 0;
    const auto countError = [&errors](const StoreError& /*error*/) { ++errors; };
    const bool isWhole = book.loadAll(progress, countError) && errors == 0 &&
                         book.contacts().size() >= std::size_t(contactTotal(state)) &&
                         book.groups().size() == groupTotal + 1;
    state.PauseTiming();
    book.clear();
    state.ResumeTiming();
    if (!isWhole) return state.SkipWithError("the address book was not read whole");
  }
}

const SqliteBook& sqliteBook(int contactTotal) {
  static std::unordered_map<int, std::unique_ptr<SqliteBook>> books;
  auto& book = books[contactTotal];
  if (!book) {
    const QString path = BenchFolder::withContacts(contactTotal).file(u"book.sqlite"_s);
    book = std::make_unique<SqliteBook>(QFile::encodeName(path));
    book->fill(contactTotal, groupTotal);
  }
  return *book;
}

void loadSqlite(benchmark::State& state) {
  const SqliteBook& database = sqliteBook(contactTotal(state));
  for (auto step : state) {
    auto book = std::make_unique<SqliteBook::Contents>(database.load());
    const bool isWhole =
        book->contacts.size() >= std::size_t(contactTotal(state)) && book->groups.size() == groupTotal + 1;
    state.PauseTiming();
    book.reset();
    state.ResumeTiming();
    if (!isWhole) return state.SkipWithError("the database was not read whole");
  }
}

// The contact to save: the same one with a different phone number, or a new one, each time.
class NextContact {
 public:
  explicit NextContact(bool isNew) : isNew_(isNew), contact_(sampleContacts(1).front()) {}

  const ContactRecord& operator()() {
    static int number = 0;
    ++number;
    if (isNew_) contact_.name = u"New contact %1"_s.arg(number);
    contact_.phone = u"+%1"_s.arg(number);
    return contact_;
  }

 private:
  bool isNew_;
  ContactRecord contact_;
};

// A durable write of one contact. Returns false on error.
using Saving = std::function<bool(const ContactRecord&)>;

Saving storeSaving(ItemDatabase& database, const QString& path) {
  return [&database, path](const ContactRecord& contact) {
    QString error;
    return database.writeItem(error, nameWidth, path, contactRecordSize, packContact(contact), waitSeconds);
  };
}

// The minimum of a durable write of one record.
Saving bareSaving(const QByteArray& path, bool atEnd) {
  return [path, atEnd](const ContactRecord&) {
    static constexpr std::array<char, contactRecordSize> record = {1};
    const int handle = ::open(path.constData(), O_RDWR | O_DSYNC | O_CLOEXEC);
    ::lseek(handle, 0, atEnd ? SEEK_END : SEEK_SET);
    const auto written = ::write(handle, record.data(), record.size());
    return ::close(handle) == 0 && written == contactRecordSize;
  };
}

// Measures calls in microseconds.
class Stopwatch {
 public:
  bool time(const Saving& saving, const ContactRecord& contact) {
    const auto begin = std::chrono::steady_clock::now();
    const bool done = saving(contact);
    const std::chrono::duration<double, std::micro> passed = std::chrono::steady_clock::now() - begin;
    times_.push_back(passed.count());
    return done;
  }
  [[nodiscard]] double last() const { return times_.back(); }
  [[nodiscard]] double median() {
    const auto middle = times_.begin() + static_cast<std::ptrdiff_t>(times_.size() / 2);
    std::nth_element(times_.begin(), middle, times_.end());
    return *middle;
  }

 private:
  std::vector<double> times_;
};

// The speed of a disk varies over time, so the three kinds are measured alternately, in random order. The
// time shown is that of the store; the counters are medians in microseconds.
void save(benchmark::State& state, bool isNew) {
  const BenchFolder& folder = BenchFolder::withContacts(contactTotal(state));
  const QString path = folder.file(contactsFile);
  const QString barePath = folder.file(u"bare"_s);
  if (!QFile::exists(barePath)) QFile::copy(path, barePath);
  const SqliteBook& sqlite = sqliteBook(contactTotal(state));
  SleepingLockWaiter waiter;
  ItemIndexCache cache;
  ItemDatabase database(cache, waiter);
  const std::array<Saving, 3> savings = {storeSaving(database, path),
                                         [&](const ContactRecord& contact) { return sqlite.save(contact); },
                                         bareSaving(QFile::encodeName(barePath), isNew)};
  std::array<Stopwatch, savings.size()> watches;
  NextContact next(isNew);
  // The first write reads the index, which the program does once.
  if (!savings[0](next())) return state.SkipWithError("not saved");
  std::array<std::size_t, savings.size()> order = {0, 1, 2};
  std::mt19937 random;
  for (auto step : state) {
    const ContactRecord& contact = next();
    std::shuffle(order.begin(), order.end(), random);
    for (const std::size_t which : order)
      if (!watches[which].time(savings[which], contact)) return state.SkipWithError("not saved");
    state.SetIterationTime(watches[0].last() / 1e6);
  }
  const double store = watches[0].median();
  state.counters["store_us"] = store;
  state.counters["sqlite_us"] = watches[1].median();
  state.counters["bare_us"] = watches[2].median();
}

std::size_t memoryInUse() {
  const auto info = ::mallinfo2();
  return info.uordblks + info.hblkhd;
}

std::size_t keyBytes(const ItemIndex& index) {
  std::size_t total = 0;
  for (auto entry = index.recordNumbers.keyBegin(); entry != index.recordNumbers.keyEnd(); ++entry)
    total += static_cast<std::size_t>(entry->size());
  return total;
}

void buildIndex(benchmark::State& state) {
  const QString path = BenchFolder::withContacts(contactTotal(state)).file(contactsFile);
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
    // Searching a missing key only needs the index.
    if (!database.deleteItem(error, nameWidth, path, "no such key", contactRecordSize, deleted, waitSeconds))
      return state.SkipWithError(qPrintable(error));
    state.PauseTiming();
    const ItemIndex& index = *cache.find(path);
    bytesEach = double(memoryInUse() - before - keyBytes(index)) / double(index.recordCount);
    state.ResumeTiming();
  }
  state.counters["bytes_per_record"] = bytesEach;
}

void sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->RangeMultiplier(10)->Range(thousand, million);
}

void turns(benchmark::internal::Benchmark* benchmark) {
  benchmark->Apply(sizes)->UseManualTime()->Iterations(300)->Unit(benchmark::kMicrosecond);
}

// Loading and indexing come first, because saving adds contacts.
BENCHMARK(loadStore)->Apply(sizes)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(loadSqlite)->Apply(sizes)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(buildIndex)->Apply(sizes)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(save, existing, false)->Apply(turns);
BENCHMARK_CAPTURE(save, fresh, true)->Apply(turns);

}  // namespace
}  // namespace parlexo
