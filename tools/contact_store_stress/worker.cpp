// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/contact_store_stress/worker.h"

#include <ctime>
#include <functional>
#include <random>

#include <QByteArray>
#include <QString>

#include "base/progress.h"
#include "contacts/address_book.h"
#include "contacts/contact_file_format.h"
#include "contacts/item_database.h"
#include "tools/contact_store_stress/journal.h"
#include "tools/contact_store_stress/stress_record.h"

namespace parlexo::stress {

namespace {

constexpr int ownKeys = 20;
constexpr int sharedKeys = 40;
constexpr int groupKeys = 30;
constexpr int groupCount = 3;
constexpr int timeoutSeconds = 60;
constexpr long pauseNanoseconds = 500'000;

// Retries quickly, because this program tests contention.
class ImpatientWaiter final : public LockWaiter {
 public:
  [[nodiscard]] qint64 nowSeconds() override { return nowNanoseconds() / 1'000'000'000; }
  void pause() override {
    const timespec moment = {0, pauseNanoseconds};
    ::nanosleep(&moment, nullptr);
  }
};

// A database whose operations are recorded in a journal. `prefix` is prepended to the keys in a journal
// shared by several databases.
class JournaledStore {
 public:
  JournaledStore(Kind kind, const std::string& path, JournalWriter& journal, ItemDatabase& database,
                 const std::string& prefix = {})
      : kind_(kind),
        path_(QString::fromStdString(path)),
        journal_(journal),
        database_(database),
        prefix_(prefix) {}

  // `storeBefore` is part of the operation. If it fails, the operation has no effect.
  bool write(
      const std::string& key, const std::string& value,
      const std::function<bool()>& storeBefore = [] { return true; }) {
    const std::string record = recordFor(kind_, key, value);
    journal_.begin(Action::Write, prefix_ + key, kind_ == Kind::Members ? memberValue : value);
    if (!storeBefore()) {
      journal_.endWithoutEffect();
      return false;
    }
    const bool written = database_.writeItem(error_, nameWidth, path_, recordWidth(kind_),
                                             QByteArrayView(record), timeoutSeconds);
    finish(written);
    return written;
  }

  void erase(const std::string& key) {
    bool deleted = false;
    journal_.begin(Action::Delete, prefix_ + key, {});
    const bool success = database_.deleteItem(error_, nameWidth, path_, QByteArray::fromStdString(key),
                                              recordWidth(kind_), deleted, timeoutSeconds);
    // A key stored after this process read its index is not found, which the store reports.
    if (success && !deleted)
      journal_.endWithoutEffect();
    else
      finish(success);
  }

  void readAll() {
    const auto check = [this](QByteArrayView record) {
      const CheckedRecord checked = checkRecord(kind_, record.data());
      if (!checked.problem.empty()) journal_.complain("read " + checked.key + ": " + checked.problem);
      return true;
    };
    if (!database_.readAllItems(error_, recordWidth(kind_), path_, check, timeoutSeconds))
      journal_.complain("reading: " + error_.toStdString());
    error_.clear();
  }

  // Removes the file with all its records. It may be missing or in use.
  void removeFile() {
    journal_.begin(Action::RemoveFile, prefix_, {});
    if (database_.removeDb(path_))
      journal_.end(true);
    else
      journal_.endWithoutEffect();
  }

  void createFile() {
    if (!database_.createDb(error_, path_)) journal_.complain(error_.toStdString());
    error_.clear();
  }

 private:
  void finish(bool success) {
    journal_.end(success);
    // Message 5: other processes appended first eleven times in a row, and nothing was stored.
    if (!success && !error_.contains(QLatin1String("[writeItem:5"))) journal_.complain(error_.toStdString());
    error_.clear();
  }

  Kind kind_;
  QString path_;
  JournalWriter& journal_;
  ItemDatabase& database_;
  std::string prefix_;
  QString error_;
};

// The state of a worker process.
struct Process {
  explicit Process(const WorkerTask& workerTask) : task(workerTask), random(workerTask.seed) {}

  [[nodiscard]] bool hasTime() const { return nowNanoseconds() < task.until; }
  std::uint64_t pick(std::uint64_t count) { return random() % count; }

  const WorkerTask& task;
  std::mt19937_64 random;
  ItemIndexCache cache;
  ImpatientWaiter waiter;
  ItemDatabase database{cache, waiter};
};

void deleteContact(JournaledStore& contacts, JournaledStore& members, const std::string& key) {
  contacts.erase(key);
  members.erase(key);
}

class NoProgress final : public Progress {
 public:
  void show(const QString& /*text*/) override {}
  void setText(const QString& /*text*/) override {}
  void hide() override {}
};

std::string someKey(Process& process) {
  if (process.pick(2) == 0) return "shared " + std::to_string(process.pick(sharedKeys));
  return "own " + std::to_string(process.task.number) + ' ' + std::to_string(process.pick(ownKeys));
}

}  // namespace

void workOnContacts(const WorkerTask& task) {
  Process process(task);
  JournalWriter contactJournal(task.journal);
  JournalWriter groupJournal(memberJournal(task.journal));
  JournaledStore contacts(Kind::Contacts, contactsPath(task.folder), contactJournal, process.database);
  JournaledStore members(Kind::Members, membersPath(task.folder), groupJournal, process.database);
  std::uint64_t sequence = 0;
  while (process.hasTime()) {
    const auto dice = process.pick(10);
    const std::string key = someKey(process);
    const std::string value = std::to_string(task.number) + '/' + std::to_string(++sequence);
    if (dice == 0)
      (process.pick(2) == 0 ? members : contacts).readAll();
    else if (dice == 1)
      members.erase(key);
    else if (dice == 2)
      deleteContact(contacts, members, key);
    else if (dice <= 5)
      contacts.write(key, value);
    else
      members.write(key, {}, [&] { return contacts.write(key, value); });
  }
}

void workAsStartingProgram(const WorkerTask& task) {
  Process process(task);
  JournalWriter journal(startJournal(task.journal));
  NoProgress progress;
  while (process.hasTime()) {
    process.cache.dropAllItemIndexes();
    AddressBook book(QString::fromStdString(task.folder), process.database);
    journal.begin(Action::Start, "start", {});
    journal.end(book.loadAll(
        progress, [&](const StoreError& error) { journal.complain(error.message().toStdString()); }));
    process.waiter.pause();
  }
}

void workOnGroups(const WorkerTask& task) {
  Process process(task);
  JournalWriter journal(task.journal);
  std::vector<JournaledStore> groups;
  for (const std::string& path : groupPaths(task.folder))
    groups.emplace_back(Kind::Members, path, journal, process.database, groupPrefix(path));
  while (process.hasTime()) {
    JournaledStore& group = groups[process.pick(groups.size())];
    const std::string key = "member " + std::to_string(process.pick(groupKeys));
    const auto dice = process.pick(40);
    if (dice == 0)
      group.removeFile();
    else if (dice == 1)
      group.createFile();
    else if (dice <= 4)
      group.readAll();
    else if (dice <= 12)
      group.erase(key);
    else
      group.write(key, {});
  }
}

std::string memberJournal(const std::string& journal) {
  return journal + "-members";
}

std::string startJournal(const std::string& journal) {
  return journal + "-starts";
}

std::string contactsPath(const std::string& folder) {
  return folder + "/All Contacts.all_grp";
}

std::string membersPath(const std::string& folder) {
  return folder + "/Team.grp";
}

std::vector<std::string> groupPaths(const std::string& folder) {
  std::vector<std::string> paths;
  paths.reserve(groupCount);
  for (int number = 0; number < groupCount; ++number)
    paths.push_back(folder + "/Group " + std::to_string(number) + ".grp");
  return paths;
}

}  // namespace parlexo::stress
