// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include "contacts/contact_record.h"

namespace parlexo {

/// The byte layout of the records in the contact database and in group files (docs/file-formats.md).

/// Width of the key, a contact's name, behind the state byte of every record.
inline constexpr int nameWidth = 80;
/// Widths of other fields, in bytes of the code page.
inline constexpr int emailWidth = 60;
inline constexpr int extraWidth = 40;
inline constexpr int contactRecordSize = 512;
inline constexpr int memberRecordSize = 256;

/// A name as the key of a record: bytes of the code page, cut to the key's width and at a zero character.
[[nodiscard]] QByteArray packName(const QString& name);

/// The record of a contact, in use. Values longer than their field are cut; of the flags the first
/// character is kept.
[[nodiscard]] QByteArray packContact(const ContactRecord& contact);

/// The contact in a record of contactRecordSize bytes, whatever its state byte.
[[nodiscard]] ContactRecord unpackContact(QByteArrayView record);

/// The record of a group's member, in use.
[[nodiscard]] QByteArray packMember(const QString& contactName);

/// The member's name, as bytes of the code page, in a record of at least the key's length.
[[nodiscard]] QByteArray unpackMember(QByteArrayView record);

}  // namespace parlexo
