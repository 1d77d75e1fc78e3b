// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "protocol/records.h"

namespace parlexo::protocol {

/// The kinds of member that a record has; each stands for one XML type.
enum class FieldType {
  Text,          ///< std::string: xsd:string that the record owns
  BorrowedText,  ///< const char*: xsd:string that someone else owns, null when absent
  Integer,       ///< std::int32_t: xsd:int
  Real,          ///< double: xsd:double
  Boolean,       ///< bool: xsd:boolean
  Binary,        ///< BinaryData: xsd:base64Binary
};

/// One field of one record in hand: its name on the wire and where its value lies. The type follows from the
/// member.
struct Field {
  Field(const char* wireName, std::string& member) : Field(wireName, FieldType::Text, &member) {}
  Field(const char* wireName, const char*& member) : Field(wireName, FieldType::BorrowedText, &member) {}
  Field(const char* wireName, std::int32_t& member) : Field(wireName, FieldType::Integer, &member) {}
  Field(const char* wireName, double& member) : Field(wireName, FieldType::Real, &member) {}
  Field(const char* wireName, bool& member) : Field(wireName, FieldType::Boolean, &member) {}
  Field(const char* wireName, BinaryData& member) : Field(wireName, FieldType::Binary, &member) {}

  const char* name;
  FieldType type;
  void* value;  ///< points to the type that `type` names

 private:
  Field(const char* wireName, FieldType fieldType, void* member)
      : name(wireName), type(fieldType), value(member) {}
};

/// The fields of one record, in wire order.
using Fields = std::vector<Field>;

}  // namespace parlexo::protocol
