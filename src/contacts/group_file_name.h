// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

inline constexpr char groupExtension[] = ".grp";
inline constexpr char contactsExtension[] = ".all_grp";

/// The file name for a group's (or database's) name: characters that file names may not have are replaced
/// by a hyphen and a digit or letter, hyphens are doubled, and `extension` is appended.
[[nodiscard]] QString encodeGroupFileName(const QString& name, const QString& extension);

/// The group's name for a file name. Not the exact inverse: doubled hyphens are undone first, so that the
/// group a-1, stored as a--1, reads back as a%. Address books in use depend on that.
[[nodiscard]] QString decodeGroupFileName(const QString& fileName, const QString& extension);

/// What the name of a new group will be once the folder has been read again.
[[nodiscard]] QString groupNameAfterRestart(const QString& name);

/// `name` with a blank in the place of the hyphens that keep it from reading back, blanks at both ends
/// trimmed.
[[nodiscard]] QString groupNameThatStays(const QString& name);

}  // namespace parlexo
