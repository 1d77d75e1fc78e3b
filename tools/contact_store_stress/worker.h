#pragma once

#include <cstdint>
#include <string>

namespace parlexo::stress {

/// What one process does until it is killed or its time is over: it writes, updates and deletes contacts,
/// partly its own and partly ones that all processes fight over, and reads everything now and then. Every
/// record it meets must be whole. What it was told goes into its journal.
struct WorkerTask {
  std::string database;  ///< path of the contact database
  std::string journal;
  int number = 0;  ///< no two processes of a run have the same
  std::uint64_t seed = 0;
  std::int64_t until = 0;  ///< nanoseconds of the monotonic clock
};

/// Returns when the time is over.
void work(const WorkerTask& task);

/// The contact record that carries a value: the value stands in one field and a digest of key and value in
/// all others, so that a torn record or one made of two can't pass.
[[nodiscard]] std::string recordFor(const std::string& key, const std::string& value);

/// Key and value of a record, or a text that says what is wrong with it.
struct CheckedRecord {
  std::string key;
  std::string value;
  std::string problem;
};
[[nodiscard]] CheckedRecord checkRecord(const char* record);

}  // namespace parlexo::stress
