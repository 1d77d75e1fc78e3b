// SPDX-License-Identifier: GPL-3.0-or-later
// contact-store-stress: many processes write, delete and read in one contacts folder and are killed at random
// moments. Afterwards the files are compared with the results that the store reported to each of them.

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <map>
#include <random>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QStringList>
#include <QTemporaryDir>

#include "tools/contact_store_stress/journal.h"
#include "tools/contact_store_stress/stress_record.h"
#include "tools/contact_store_stress/verdict.h"
#include "tools/contact_store_stress/worker.h"

using namespace Qt::StringLiterals;

namespace {

using namespace parlexo::stress;

// One of this many processes is a starting program, the others change contacts and members.
constexpr int rolesInTurn = 3;

struct RunOptions {
  int processes = 4;
  int seconds = 5;
  int killWithin = 100;  // milliseconds
  std::uint64_t seed = 1;
  QStringList folders;  // paths of one contacts folder, which the processes use in turn
  QString journals;
  bool groups = false;
};

// Starts processes, kills one at random intervals and replaces it by another.
class Arena {
 public:
  explicit Arena(const RunOptions& options)
      : options_(options),
        random_(options.seed),
        until_(nowNanoseconds() + options.seconds * std::int64_t{1'000'000'000}) {}

  void run() {
    for (int i = 0; i < options_.processes; ++i) startWorker();
    while (nowNanoseconds() < until_) {
      const auto longest = options_.killWithin * std::uint64_t{1'000'000};
      pause(std::min(static_cast<std::int64_t>(random_() % longest), until_ - nowNanoseconds()));
      killRandomWorker();
      startWorker();
    }
    for (const auto& [process, number] : workers_) ::waitpid(process, nullptr, 0);
  }

  [[nodiscard]] const std::vector<std::string>& journals() const { return journals_; }
  [[nodiscard]] int killed() const { return killed_; }

 private:
  static void pause(std::int64_t nanoseconds) {
    const timespec moment = {nanoseconds / 1'000'000'000, nanoseconds % 1'000'000'000};
    ::nanosleep(&moment, nullptr);
  }

  void startWorker() {
    const int number = static_cast<int>(journals_.size());
    journals_.push_back(options_.journals.toStdString() + "/journal-" + std::to_string(number));
    const QString& folder = options_.folders[number % options_.folders.size()];
    const WorkerTask task = {.folder = folder.toStdString(),
                             .journal = journals_.back(),
                             .number = number,
                             .seed = random_(),
                             .until = until_};
    const pid_t process = ::fork();
    if (process == 0) {
      work(task);
      std::_Exit(0);
    }
    if (process > 0) workers_[process] = number;
  }

  void work(const WorkerTask& task) const {
    if (options_.groups)
      workOnGroups(task);
    else if (task.number % rolesInTurn == 0)
      workAsStartingProgram(task);
    else
      workOnContacts(task);
  }

  void killRandomWorker() {
    if (workers_.empty()) return;
    const auto chosen = std::next(workers_.begin(), static_cast<std::ptrdiff_t>(random_() % workers_.size()));
    ::kill(chosen->first, SIGKILL);
    int status = 0;
    ::waitpid(chosen->first, &status, 0);
    if (WIFSIGNALED(status)) ++killed_;
    workers_.erase(chosen);
  }

  const RunOptions& options_;
  std::mt19937_64 random_;
  std::int64_t until_;
  std::map<pid_t, int> workers_;
  std::vector<std::string> journals_;
  int killed_ = 0;
};

void describeOptions(QCommandLineParser& parser) {
  parser.setApplicationDescription(
      u"Lets processes work in one contacts folder, kills some, and checks that no acknowledged change was lost."_s);
  parser.addHelpOption();
  parser.addOptions(
      {{u"processes"_s, u"The number of processes at the same time."_s, u"N"_s, u"4"_s},
       {u"seconds"_s, u"The duration in seconds."_s, u"S"_s, u"5"_s},
       {u"kill-within"_s, u"The maximum time until the next process is killed, in milliseconds."_s, u"MS"_s,
        u"100"_s},
       {u"seed"_s, u"The seed of all random choices."_s, u"K"_s, u"1"_s},
       {u"folder"_s,
        u"The contacts folder; default: a temporary folder. Give several paths of one "
        "folder, such as mounts of one share, by repeating the option."_s,
        u"DIR"_s},
       {u"journals"_s, u"The folder for the journals; default: the first contacts folder."_s, u"DIR"_s},
       {u"groups"_s, u"Delete and recreate group files while other processes use them."_s}});
}

RunOptions parseOptions(const QCoreApplication& application) {
  QCommandLineParser parser;
  describeOptions(parser);
  parser.process(application);
  bool processesOk = false;
  bool secondsOk = false;
  bool killWithinOk = false;
  bool seedOk = false;
  RunOptions options = {.processes = parser.value(u"processes"_s).toInt(&processesOk),
                        .seconds = parser.value(u"seconds"_s).toInt(&secondsOk),
                        .killWithin = parser.value(u"kill-within"_s).toInt(&killWithinOk),
                        .seed = parser.value(u"seed"_s).toULongLong(&seedOk),
                        .folders = parser.values(u"folder"_s),
                        .journals = parser.value(u"journals"_s),
                        .groups = parser.isSet(u"groups"_s)};
  if (!processesOk || !secondsOk || !killWithinOk || !seedOk || options.processes < 1 ||
      options.seconds < 1 || options.killWithin < 1) {
    std::fputs("All numbers must be whole numbers, and at least 1 except the seed.\n", stderr);
    std::exit(2);
  }
  return options;
}

bool report(const char* what, const Verdict& verdict) {
  for (const std::string& problem : verdict.problems) std::printf("PROBLEM %s\n", problem.c_str());
  std::printf(
      "%s: %zu operations: %zu acknowledged, %zu not; %zu records, %zu doubled, %zu missing; %zu "
      "problem(s)\n",
      what, verdict.operations, verdict.acknowledged, verdict.interrupted, verdict.records, verdict.doubled,
      verdict.missing, verdict.problems.size());
  return verdict.problems.empty() && verdict.acknowledged > 0;
}

bool isStoreSound(const Arena& arena, const std::string& folder, bool groups) {
  std::printf("%zu processes, %d killed\n", arena.journals().size(), arena.killed());
  if (groups) return report("groups", checkGroups(groupPaths(folder), arena.journals()));
  std::vector<std::string> memberJournals;
  std::vector<std::string> startJournals;
  for (const std::string& journal : arena.journals()) {
    memberJournals.push_back(memberJournal(journal));
    startJournals.push_back(startJournal(journal));
  }
  const bool starts = report("starts", checkStarts(startJournals));
  const bool contacts = report("contacts", check(Kind::Contacts, contactsPath(folder), arena.journals()));
  return report("members", check(Kind::Members, membersPath(folder), memberJournals, arena.journals())) &&
         contacts && starts;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  RunOptions options = parseOptions(application);
  const QTemporaryDir temporary;
  if (options.folders.isEmpty()) options.folders = QStringList(temporary.path());
  if (options.journals.isEmpty()) options.journals = options.folders.first();
  for (const QString& folder : options.folders + QStringList(options.journals)) {
    if (QDir().mkpath(folder) && QDir(folder).isEmpty()) continue;
    std::fprintf(stderr, "%s can't be created or is not empty.\n", qUtf8Printable(folder));
    return 2;
  }
  Arena arena(options);
  arena.run();
  return isStoreSound(arena, options.folders.first().toStdString(), options.groups) ? 0 : 1;
}
