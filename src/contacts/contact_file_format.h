// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include "contacts/contact_record.h"

namespace parlexo {

// The names of the files of the address book and the layout of their records (docs/file-formats.md).

inline constexpr char groupExtension[] = ".grp";
inline constexpr char contactsExtension[] = ".all_grp";

/// Returns the file name for a group's (or database's) name: replaces characters that are illegal in file
/// names by a hyphen and a digit or letter, doubles hyphens, and appends `extension`.
[[nodiscard]] QString encodeGroupFileName(const QString& name, const QString& extension);

/// Returns the group's name for a file name. This is not the exact inverse: it undoes doubled hyphens first,
/// so the group a-1, stored as a--1, reads back as a%. Existing address books depend on this.
[[nodiscard]] QString decodeGroupFileName(const QString& fileName, const QString& extension);

/// Returns the name that a new group will have after the next start of the program.
[[nodiscard]] QString groupNameAfterRestart(const QString& name);

/// Returns `name`, trimmed, with a space in place of each hyphen that would be read back differently.
[[nodiscard]] QString stableGroupName(const QString& name);

/// Width in bytes of the key, a contact's name, which follows the state byte of every record.
inline constexpr int nameWidth = 80;
/// Widths of other fields, in bytes of the code page.
inline constexpr int emailWidth = 60;
inline constexpr int extraWidth = 40;
inline constexpr int contactRecordSize = 512;
inline constexpr int memberRecordSize = 256;

/// Encodes a name as the key of a record: bytes of the code page, truncated to the key's width and at a zero
/// character.
[[nodiscard]] QByteArray packName(const QString& name);

/// Encodes a contact as a record in use. Truncates values to the width of their fields, flags to one
/// character.
[[nodiscard]] QByteArray packContact(const ContactRecord& contact);

/// Decodes the contact in a record of contactRecordSize bytes. Ignores the state byte.
[[nodiscard]] ContactRecord unpackContact(QByteArrayView record);

/// Encodes a group's member as a record in use.
[[nodiscard]] QByteArray packMember(const QString& contactName);

/// Returns the member's name, as bytes of the code page, from a record at least as long as state byte and
/// key.
[[nodiscard]] QByteArray unpackMember(QByteArrayView record);

}  // namespace parlexo
