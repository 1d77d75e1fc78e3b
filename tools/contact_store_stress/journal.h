// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace parlexo::stress {

enum class Action : char { Write = 'w', Delete = 'd', RemoveFile = 'r', Start = 's' };

/// One operation of one process as its journal tells it. Times are nanoseconds of the machine's monotonic
/// clock, which all processes share.
struct Operation {
  static constexpr std::int64_t never = INT64_MAX;

  Action action = Action::Write;
  std::string key;
  std::string value;  ///< empty for a deletion
  std::int64_t begun = 0;
  std::int64_t ended = never;  ///< never when the process was killed in between or the operation failed
  bool acknowledged = false;   ///< the store had said that it was done
};

/// What a process writes down about its operations: first what it is about to do, then that it was done.
/// The lines reach the kernel one by one, so that they outlast the process being killed.
class JournalWriter {
 public:
  /// Opens the file for appending; a failure ends the process with a message.
  explicit JournalWriter(const std::string& path);
  ~JournalWriter();
  JournalWriter(const JournalWriter&) = delete;
  JournalWriter& operator=(const JournalWriter&) = delete;

  void begin(Action action, const std::string& key, const std::string& value);
  void end(bool success);
  /// The store said that it found nothing to do.
  void endWithoutEffect();
  /// Something that must never happen; it makes the whole run fail.
  void complain(const std::string& what);

 private:
  void line(const std::string& text);

  int handle_;
};

struct Journal {
  std::vector<Operation> operations;  ///< without those that had nothing to do
  std::vector<std::string> complaints;
};

/// Reads a journal; a last line that the process did not finish is passed over.
[[nodiscard]] Journal readJournal(const std::string& path);

/// What stands before the keys of a group's file where one journal tells of several: the file's name without
/// the folder, to which several ways may lead.
[[nodiscard]] std::string groupPrefix(const std::string& path);

[[nodiscard]] std::int64_t nowNanoseconds();

}  // namespace parlexo::stress
