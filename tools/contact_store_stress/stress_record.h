// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace parlexo::stress {

/// The two kinds of database files.
enum class Kind { Contacts, Members };

/// The value of every member record, which has no data except its key.
inline constexpr char memberValue[] = "member";

/// Returns the size of a record in bytes.
[[nodiscard]] int recordWidth(Kind kind);

/// Returns the record with this key and value. A contact contains the value in one field and a digest of key
/// and value in all others, which reveals torn and mixed records. A member only contains its name.
[[nodiscard]] std::string recordFor(Kind kind, const std::string& key, const std::string& value);

/// Key and value of a record, and an error message if it is invalid.
struct CheckedRecord {
  std::string key;
  std::string value;
  std::string problem;
};
[[nodiscard]] CheckedRecord checkRecord(Kind kind, const char* record);

}  // namespace parlexo::stress
