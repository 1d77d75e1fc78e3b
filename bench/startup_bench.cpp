// How long the user waits at the start of the program while an address book is read: ours, and the same
// contacts and groups out of an SQLite database for comparison.

#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "base/notifier.h"
#include "base/progress.h"
#include "contacts/address_book.h"
#include "contacts/item_database.h"
#include "contacts/item_index_cache.h"
#include "contacts/lock_waiter.h"
#include "contacts/sample_contacts.h"
#include "gateway/boxes/progress_box.h"

namespace parlexo {
namespace {

constexpr int groupTotal = 100;

class MessageCounter final : public Notifier {
 public:
  MessageResult show(const QString&, unsigned, int) override {
    ++count;
    return MessageResult::Ok;
  }

  int count = 0;
};

class NoProgress final : public Progress {
 public:
  void show(const QString&) override {}
  void setText(const QString&) override {}
  void hide() override {}
};

/// One address book of a given size on disk, in the program's own files and as an SQLite database.
class Folder {
 public:
  explicit Folder(int contactTotal) {
    problem_ = writeSampleFolder(dir_.path(), contactTotal, groupTotal);
    if (problem_.isEmpty()) writeDatabase(contactTotal);
  }

  [[nodiscard]] const QString& problem() const { return problem_; }
  [[nodiscard]] QString path() const { return dir_.path(); }
  [[nodiscard]] QByteArray databasePath() const {
    return dir_.filePath(QStringLiteral("book.sqlite")).toUtf8();
  }

 private:
  void writeDatabase(int contactTotal);

  QTemporaryDir dir_;
  QString problem_;
};

using Database = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;
using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

Database openDatabase(const QByteArray& path) {
  sqlite3* opened = nullptr;
  sqlite3_open(path.constData(), &opened);
  return {opened, &sqlite3_close};
}

Statement prepare(const Database& database, std::string_view sql) {
  sqlite3_stmt* prepared = nullptr;
  sqlite3_prepare_v2(database.get(), sql.data(), static_cast<int>(sql.size()), &prepared, nullptr);
  return {prepared, &sqlite3_finalize};
}

void insertRow(const Statement& statement, const std::vector<QString>& values) {
  int column = 0;
  for (const QString& value : values) {
    const QByteArray bytes = value.toUtf8();
    sqlite3_bind_text(statement.get(), ++column, bytes.constData(), static_cast<int>(bytes.size()),
                      SQLITE_TRANSIENT);
  }
  sqlite3_step(statement.get());
  sqlite3_reset(statement.get());
}

void Folder::writeDatabase(int contactTotal) {
  const auto contacts = sampleContacts(contactTotal);
  const Database database = openDatabase(databasePath());
  sqlite3_exec(
      database.get(),
      "create table contact(name text primary key, phone, sms, media, fax, email, e1, e2, e3, e4, e5, e6);"
      "create table member(grp, name, primary key(grp, name)) without rowid; begin",
      nullptr, nullptr, nullptr);
  const Statement contactRow = prepare(database, "insert into contact values(?,?,?,?,?,?,?,?,?,?,?,?)");
  for (const ContactRecord& c : contacts) {
    insertRow(contactRow, {c.name, c.phone, c.supportsSms, c.supportsMedia, c.fax, c.email, c.extra[0],
                           c.extra[1], c.extra[2], c.extra[3], c.extra[4], c.extra[5]});
  }
  const Statement memberRow = prepare(database, "insert into member values(?,?)");
  for (const SampleGroup& group : sampleGroups(groupTotal, contacts)) {
    for (const QString& member : group.memberNames) insertRow(memberRow, {group.name, member});
  }
  sqlite3_exec(database.get(), "commit", nullptr, nullptr, nullptr);
}

/// The folder with `contactTotal` contacts, written at its first use.
const Folder& folderOf(int contactTotal) {
  static std::unordered_map<int, std::unique_ptr<Folder>> folders;
  auto& folder = folders[contactTotal];
  if (!folder) folder = std::make_unique<Folder>(contactTotal);
  return *folder;
}

int sizeOf(const benchmark::State& state) {
  return static_cast<int>(state.range(0));
}

void load(benchmark::State& state, Progress& progress) {
  const Folder& folder = folderOf(sizeOf(state));
  if (!folder.problem().isEmpty()) return state.SkipWithError(qPrintable(folder.problem()));
  MessageCounter notifier;
  SleepingLockWaiter waiter;
  for (auto step : state) {
    ItemIndexCache cache;
    ItemDatabase database(cache, waiter);
    AddressBook book(folder.path(), database, notifier);
    progress.show(QStringLiteral("Loading Contacts from Database..."));
    const bool isLoaded = book.loadAll(progress);
    progress.hide();
    const bool isWhole = isLoaded && notifier.count == 0 &&
                         book.contacts().size() == std::size_t(sizeOf(state)) &&
                         book.groups().size() == groupTotal + 1;
    state.PauseTiming();
    book.clear();
    state.ResumeTiming();
    if (!isWhole) return state.SkipWithError("the address book was not read whole");
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void loadWithoutBox(benchmark::State& state) {
  NoProgress progress;
  load(state, progress);
}
BENCHMARK(loadWithoutBox)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

/// What the user sees: with the moving box and its counts.
void loadUnderProgressBox(benchmark::State& state) {
  ProgressBox progress;
  load(state, progress);
}
BENCHMARK(loadUnderProgressBox)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

QString textAt(const Statement& row, int column) {
  return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(row.get(), column)),
                           sqlite3_column_bytes(row.get(), column));
}

ContactRecord contactAt(const Statement& row) {
  ContactRecord contact{
      textAt(row, 0), textAt(row, 1), textAt(row, 2), textAt(row, 3), textAt(row, 4), textAt(row, 5), {}};
  for (int field = 0; field < ContactRecord::extraCount; ++field)
    contact.extra[field] = textAt(row, 6 + field);
  return contact;
}

struct SqliteBook {
  std::unordered_map<QString, ContactRecord> contacts;
  std::unordered_map<QString, std::unordered_map<QString, const ContactRecord*>> groups;
};

SqliteBook readDatabase(const QByteArray& path) {
  SqliteBook book;
  const Database database = openDatabase(path);
  const Statement contactRows = prepare(database, "select * from contact");
  while (sqlite3_step(contactRows.get()) == SQLITE_ROW) {
    ContactRecord contact = contactAt(contactRows);
    book.contacts.insert_or_assign(contact.name, std::move(contact));
  }
  const Statement memberRows = prepare(database, "select grp, name from member");
  while (sqlite3_step(memberRows.get()) == SQLITE_ROW) {
    const auto found = book.contacts.find(textAt(memberRows, 1));
    if (found != book.contacts.end()) book.groups[textAt(memberRows, 0)][found->first] = &found->second;
  }
  return book;
}

/// The same objects in memory, out of SQLite.
void loadFromSqlite(benchmark::State& state) {
  const Folder& folder = folderOf(sizeOf(state));
  if (!folder.problem().isEmpty()) return state.SkipWithError(qPrintable(folder.problem()));
  for (auto step : state) {
    auto book = std::make_unique<SqliteBook>(readDatabase(folder.databasePath()));
    const bool isWhole =
        book->contacts.size() == std::size_t(sizeOf(state)) && book->groups.size() == groupTotal + 1;
    state.PauseTiming();
    book.reset();
    state.ResumeTiming();
    if (!isWhole) return state.SkipWithError("the database was not read whole");
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(loadFromSqlite)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace parlexo
