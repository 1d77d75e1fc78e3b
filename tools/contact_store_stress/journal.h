// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace parlexo::stress {

enum class Action : char { Write = 'w', Delete = 'd', RemoveFile = 'r', Start = 's' };

/// An operation of a process, as recorded in its journal. Times are in nanoseconds of the monotonic clock,
/// which all processes share.
struct Operation {
  static constexpr std::int64_t never = INT64_MAX;

  Action action = Action::Write;
  std::string key;
  std::string value;  ///< empty for a deletion
  std::int64_t begun = 0;
  std::int64_t ended = never;  ///< never if the process was killed before the end or the operation failed
  bool acknowledged = false;   ///< the store reported success
};

/// Records the operations of a process: one line before an operation, one after it. Each line is written to
/// the kernel at once, so it survives the killing of the process.
class JournalWriter {
 public:
  /// Opens the file for appending. Exits the process with a message on error.
  explicit JournalWriter(const std::string& path);
  ~JournalWriter();
  JournalWriter(const JournalWriter&) = delete;
  JournalWriter& operator=(const JournalWriter&) = delete;

  void begin(Action action, const std::string& key, const std::string& value);
  void end(bool success);
  /// Records that the store had nothing to do.
  void endWithoutEffect();
  /// Records an error that makes the whole test fail.
  void complain(const std::string& message);

 private:
  void line(const std::string& text);

  int handle_;
};

struct Journal {
  std::vector<Operation> operations;  ///< without operations that had no effect
  std::vector<std::string> complaints;
};

/// Reads a journal. Ignores an incomplete last line.
[[nodiscard]] Journal readJournal(const std::string& path);

/// Returns the prefix of keys in a journal shared by several group files: the file name, without the folder,
/// which may be accessible by several paths.
[[nodiscard]] std::string groupPrefix(const std::string& path);

[[nodiscard]] std::int64_t nowNanoseconds();

}  // namespace parlexo::stress
