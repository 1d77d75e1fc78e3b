// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace parlexo::stress {

/// The two kinds of database that the store keeps.
enum class Kind { Contacts, Members };

/// What every member record counts as: it is there or not.
inline constexpr char memberValue[] = "member";

/// The bytes of one record.
[[nodiscard]] int recordSizeOf(Kind kind);

/// The record that carries a value. A contact has the value in one field and a digest of key and value in
/// all others, so that a torn record or one made of two can't pass; a member has nothing but its name.
[[nodiscard]] std::string recordFor(Kind kind, const std::string& key, const std::string& value);

/// Key and value of a record, or a text that says what is wrong with it.
struct CheckedRecord {
  std::string key;
  std::string value;
  std::string problem;
};
[[nodiscard]] CheckedRecord checkRecord(Kind kind, const char* record);

}  // namespace parlexo::stress
