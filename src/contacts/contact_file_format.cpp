// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/contact_file_format.h"

#include <algorithm>
#include <array>

#include "base/code_page.h"
#include "contacts/item_database.h"
#include "contacts/zero_ended.h"

namespace parlexo {

namespace {

struct Field {
  int offset;
  int width;
};

constexpr Field nameField = {1, nameWidth};
constexpr Field emailField = {81, emailWidth};
constexpr Field phoneField = {141, 20};
constexpr Field faxField = {161, 20};
constexpr Field supportsSmsField = {181, 1};
constexpr Field supportsMediaField = {182, 1};
constexpr std::array<Field, ContactRecord::extraCount> extraFields = {{{183, extraWidth},
                                                                       {223, extraWidth},
                                                                       {263, extraWidth},
                                                                       {303, extraWidth},
                                                                       {343, extraWidth},
                                                                       {383, extraWidth}}};

// The rest of the field is zero already.
void put(QByteArray& record, Field field, const QString& value) {
  const QByteArray bytes = toCodePage(value);
  const QByteArrayView kept =
      untilZero(bytes).first(std::min<qsizetype>(untilZero(bytes).size(), field.width));
  std::copy(kept.begin(), kept.end(), record.begin() + field.offset);
}

QString get(QByteArrayView record, Field field) {
  return fromCodePage(untilZero(record.sliced(field.offset, field.width)));
}

QByteArray emptyRecord(int size) {
  QByteArray record(size, '\0');
  record[0] = ItemDatabase::recordInUse;
  return record;
}

}  // namespace

QByteArray packName(const QString& name) {
  const QByteArray bytes = toCodePage(name).left(nameWidth);
  return untilZero(bytes).toByteArray();
}

QByteArray packContact(const ContactRecord& contact) {
  QByteArray record = emptyRecord(contactRecordSize);
  put(record, nameField, contact.name);
  put(record, emailField, contact.email);
  put(record, phoneField, contact.phone);
  put(record, faxField, contact.fax);
  put(record, supportsSmsField, contact.supportsSms);
  put(record, supportsMediaField, contact.supportsMedia);
  for (std::size_t i = 0; i < extraFields.size(); ++i) put(record, extraFields[i], contact.extra[i]);
  return record;
}

ContactRecord unpackContact(QByteArrayView record) {
  ContactRecord contact;
  contact.name = get(record, nameField);
  contact.email = get(record, emailField);
  contact.phone = get(record, phoneField);
  contact.fax = get(record, faxField);
  contact.supportsSms = get(record, supportsSmsField);
  contact.supportsMedia = get(record, supportsMediaField);
  for (std::size_t i = 0; i < extraFields.size(); ++i) contact.extra[i] = get(record, extraFields[i]);
  return contact;
}

QByteArray packMember(const QString& contactName) {
  QByteArray record = emptyRecord(memberRecordSize);
  put(record, nameField, contactName);
  return record;
}

QByteArray unpackMember(QByteArrayView record) {
  return untilZero(record.sliced(nameField.offset, nameField.width)).toByteArray();
}

}  // namespace parlexo
