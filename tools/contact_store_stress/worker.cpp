#include "tools/contact_store_stress/worker.h"

#include <ctime>
#include <random>

#include <QByteArray>
#include <QString>

#include "contacts/contact_file_format.h"
#include "contacts/item_database.h"
#include "tools/contact_store_stress/journal.h"

namespace parlexo::stress {

namespace {

constexpr int ownKeys = 20;
constexpr int sharedKeys = 40;
constexpr int timeoutSeconds = 60;
constexpr long pauseNanoseconds = 500'000;

// FNV-1a; any hash that spreads would do.
QString digest(const std::string& key, const std::string& value, int field) {
  std::uint64_t hash = 0xcbf29ce484222325u + static_cast<std::uint64_t>(field);
  for (const char byte : key + '\0' + value)
    hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3u;
  return QString::number(hash, 16);
}

ContactRecord contactFor(const std::string& key, const std::string& value) {
  ContactRecord contact;
  contact.name = QString::fromStdString(key);
  contact.email = QString::fromStdString(value);
  contact.phone = digest(key, value, 0);
  contact.fax = digest(key, value, 1);
  contact.supportsSms = QStringLiteral("Y");
  contact.supportsMedia = QStringLiteral("N");
  for (std::size_t i = 0; i < contact.extra.size(); ++i)
    contact.extra[i] = digest(key, value, 2 + static_cast<int>(i));
  return contact;
}

// Tries often instead of sleeping: the fight for the file is what this program is about.
class ImpatientWaiter final : public LockWaiter {
 public:
  [[nodiscard]] qint64 nowSeconds() override { return nowNanoseconds() / 1'000'000'000; }
  void pause() override {
    const timespec moment = {0, pauseNanoseconds};
    ::nanosleep(&moment, nullptr);
  }
};

class Worker {
 public:
  explicit Worker(const WorkerTask& task)
      : task_(task),
        path_(QString::fromStdString(task.database)),
        journal_(task.journal),
        random_(task.seed) {}

  void run() {
    while (nowNanoseconds() < task_.until) {
      const auto dice = pick(10);
      if (dice == 0) {
        readAll();
      } else if (dice <= 2) {
        erase(someKey());
      } else {
        write(someKey());
      }
    }
  }

 private:
  std::uint64_t pick(std::uint64_t count) { return random_() % count; }

  std::string someKey() {
    if (pick(2) == 0) return "shared " + std::to_string(pick(sharedKeys));
    return "own " + std::to_string(task_.number) + ' ' + std::to_string(pick(ownKeys));
  }

  void write(const std::string& key) {
    const std::string value = std::to_string(task_.number) + '/' + std::to_string(++sequence_);
    const QByteArray record = packContact(contactFor(key, value));
    journal_.begin(Action::Write, key, value);
    const bool written =
        database_.writeItem(error_, nameWidth, path_, contactRecordSize, record, timeoutSeconds);
    finish(written, written);
  }

  void erase(const std::string& key) {
    bool deleted = false;
    journal_.begin(Action::Delete, key, {});
    const bool success = database_.deleteItem(error_, nameWidth, path_, QByteArray::fromStdString(key),
                                              contactRecordSize, deleted, timeoutSeconds);
    // A key that came after this process had read its index is not found, and the store says so.
    finish(success, success && deleted);
  }

  void readAll() {
    const auto check = [this](QByteArrayView record) {
      const CheckedRecord checked = checkRecord(record.data());
      if (!checked.problem.empty()) journal_.complain("read " + checked.key + ": " + checked.problem);
      return true;
    };
    if (!database_.readAllItems(error_, contactRecordSize, path_, check, timeoutSeconds)) {
      journal_.complain("reading: " + error_.toStdString());
    }
  }

  void finish(bool success, bool promised) {
    journal_.end(promised);
    // Eleven times in a row somebody else may append first; nothing is stored then and nothing promised.
    if (!success && !error_.contains(QLatin1String("[writeItem:5"))) journal_.complain(error_.toStdString());
    error_.clear();
  }

  const WorkerTask& task_;
  QString path_;
  JournalWriter journal_;
  std::mt19937_64 random_;
  ItemIndexCache cache_;
  ImpatientWaiter waiter_;
  ItemDatabase database_{cache_, waiter_};
  QString error_;
  std::uint64_t sequence_ = 0;
};

}  // namespace

void work(const WorkerTask& task) {
  Worker(task).run();
}

std::string recordFor(const std::string& key, const std::string& value) {
  return packContact(contactFor(key, value)).toStdString();
}

CheckedRecord checkRecord(const char* record) {
  const QByteArrayView bytes(record, contactRecordSize);
  const ContactRecord contact = unpackContact(bytes);
  CheckedRecord checked = {contact.name.toStdString(), contact.email.toStdString(), {}};
  const std::string expected = recordFor(checked.key, checked.value);
  if (bytes.sliced(1) != QByteArrayView(expected).sliced(1))
    checked.problem = "the record is torn or mixed up";
  return checked;
}

}  // namespace parlexo::stress
