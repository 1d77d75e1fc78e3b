// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/contact_store_stress/stress_record.h"

#include <cstdint>

#include <QByteArray>
#include <QString>

#include "contacts/contact_file_format.h"

namespace parlexo::stress {

using namespace Qt::StringLiterals;

namespace {

// FNV-1a; the choice of hash is arbitrary.
QString digest(const std::string& key, const std::string& value, int field) {
  std::uint64_t hash = 0xcbf29ce484222325u + static_cast<std::uint64_t>(field);
  for (const char byte : key + '\0' + value)
    hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3u;
  return QString::number(hash, 16);
}

ContactRecord contactFor(const std::string& key, const std::string& value) {
  ContactRecord contact;
  contact.name = QString::fromStdString(key);
  contact.email = QString::fromStdString(value);
  contact.phone = digest(key, value, 0);
  contact.fax = digest(key, value, 1);
  contact.supportsSms = u"Y"_s;
  contact.supportsMedia = u"N"_s;
  for (std::size_t i = 0; i < contact.extra.size(); ++i)
    contact.extra[i] = digest(key, value, 2 + static_cast<int>(i));
  return contact;
}

}  // namespace

int recordWidth(Kind kind) {
  return kind == Kind::Contacts ? contactRecordSize : memberRecordSize;
}

std::string recordFor(Kind kind, const std::string& key, const std::string& value) {
  if (kind == Kind::Members) return packMember(QString::fromStdString(key)).toStdString();
  return packContact(contactFor(key, value)).toStdString();
}

CheckedRecord checkRecord(Kind kind, const char* record) {
  const QByteArrayView bytes(record, recordWidth(kind));
  CheckedRecord checked = {unpackMember(bytes).toStdString(), memberValue, {}};
  if (kind == Kind::Contacts) checked.value = unpackContact(bytes).email.toStdString();
  const std::string expected = recordFor(kind, checked.key, checked.value);
  if (bytes.sliced(1) != QByteArrayView(expected).sliced(1))
    checked.problem = "the record is torn or mixed up";
  return checked;
}

}  // namespace parlexo::stress
