// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "protocol/records.h"

namespace parlexo::protocol {

/// The member types of records, each with its XML type.
enum class FieldType {
  Text,          ///< std::string or SecretText: xsd:string, owned by the record
  BorrowedText,  ///< const char*: xsd:string, not owned, null if absent
  Integer,       ///< std::int32_t: xsd:int
  Real,          ///< double: xsd:double
  Boolean,       ///< bool or Flag: xsd:boolean
  Binary,        ///< BinaryData: xsd:base64Binary
};

/// A field of a particular record: its name on the wire and a pointer to the member, which must outlive it.
struct Field {
  Field(const char* wireName, std::string& member) : Field(wireName, FieldType::Text, &member) {}
  Field(const char* wireName, SecretText& member) : Field(wireName, member.text) {}
  Field(const char* wireName, const char*& member) : Field(wireName, FieldType::BorrowedText, &member) {}
  Field(const char* wireName, std::int32_t& member) : Field(wireName, FieldType::Integer, &member) {}
  Field(const char* wireName, double& member) : Field(wireName, FieldType::Real, &member) {}
  Field(const char* wireName, bool& member) : Field(wireName, FieldType::Boolean, &member) {}
  template <class Tag>
  Field(const char* wireName, Flag<Tag>& member) : Field(wireName, member.value) {}
  Field(const char* wireName, BinaryData& member) : Field(wireName, FieldType::Binary, &member) {}

  const char* name;
  FieldType type;
  void* value;  ///< points to a value of type `type`

 private:
  Field(const char* wireName, FieldType fieldType, void* member)
      : name(wireName), type(fieldType), value(member) {}
};

/// The fields of one record, in wire order.
using Fields = std::vector<Field>;

}  // namespace parlexo::protocol
