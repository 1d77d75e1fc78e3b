// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QSet>
#include <QString>
#include <QStringList>

#include "addressbook/core/contact_selection.h"
#include "contacts/contact_record.h"

namespace parlexo {

class AddressBook;

/// The available values of each Extra field, sorted.
using ExtraValues = std::array<QStringList, ContactRecord::extraCount>;

/// The values chosen for each Extra field. A field with an empty set is not tested.
using ExtraChoice = std::array<QSet<QString>, ContactRecord::extraCount>;

/// Returns the distinct non-empty values of each Extra field of all contacts in `book`. Of values that differ
/// only in case, the first spelling found is used.
[[nodiscard]] ExtraValues distinctExtraValues(const AddressBook& book);

/// Returns whether any value is chosen.
[[nodiscard]] bool hasChoice(const ExtraChoice& choice);

/// Returns whether `contact` has one of the chosen values in every field with a choice. The comparison is
/// case-sensitive, unlike distinctExtraValues(), so a spelling that is not listed can't be matched. Users
/// rely on this in existing address books.
[[nodiscard]] bool matchesChoice(const ContactRecord& contact, const ExtraChoice& choice);

/// Returns all matching contacts of `book`, unsorted.
[[nodiscard]] ContactSelection::Contacts contactsMatching(const AddressBook& book, const ExtraChoice& choice);

/// The message if the user has not chosen any value.
[[nodiscard]] QString nothingChosenText();

}  // namespace parlexo
