// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/contact_file_format.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QRegularExpression>

#include "base/code_page.h"
#include "contacts/item_database.h"

namespace parlexo {

using namespace Qt::StringLiterals;

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

// The record is zero-filled.
void put(QByteArray& record, Field field, const QString& value) {
  const QByteArray bytes = toCodePage(value);
  const QByteArrayView truncated =
      untilZero(bytes).first(std::min<qsizetype>(untilZero(bytes).size(), field.width));
  std::copy(truncated.begin(), truncated.end(), record.begin() + field.offset);
}

QString get(QByteArrayView record, Field field) {
  return fromCodePage(untilZero(record.sliced(field.offset, field.width)));
}

QByteArray emptyRecord(int size) {
  QByteArray record(size, '\0');
  record[0] = ItemDatabase::recordInUse;
  return record;
}

// Plain and encoded characters, in the order in which both directions replace them throughout the name.
constexpr std::array<std::pair<const char*, const char*>, 12> replacements = {{
    {"-", "--"},
    {"%", "-1"},
    {"\\", "-2"},
    {":", "-3"},
    {"/", "-4"},
    {"*", "-5"},
    {"?", "-6"},
    {"\"", "-7"},
    {"'", "-8"},
    {".", "-9"},
    {"<", "-A"},
    {">", "-B"},
}};

}  // namespace

QString encodeGroupFileName(const QString& name, const QString& extension) {
  QString encoded = name;
  for (const auto& [plain, code] : replacements) encoded.replace(QLatin1String(plain), QLatin1String(code));
  return encoded + extension;
}

QString decodeGroupFileName(const QString& fileName, const QString& extension) {
  QString name = fileName;
  for (const auto& [plain, code] : replacements) name.replace(QLatin1String(code), QLatin1String(plain));
  if (name.endsWith(extension)) name.chop(extension.size());
  return name;
}

QString groupNameAfterRestart(const QString& name) {
  const QLatin1String extension(groupExtension);
  return decodeGroupFileName(encodeGroupFileName(name, extension), extension);
}

QString stableGroupName(const QString& name) {
  static const QRegularExpression misread(u"-+(?=[1-9AB])"_s);
  return QString(name).replace(misread, u" "_s).trimmed();
}

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
