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

/// What can be chosen for each Extra field, as six sorted lists.
using ExtraValues = std::array<QStringList, ContactRecord::extraCount>;

/// What the user has chosen for each Extra field; an empty set leaves its field untested.
using ExtraChoice = std::array<QSet<QString>, ContactRecord::extraCount>;

/// The distinct values of every Extra field over all contacts of `book`, empty ones left out. Values that
/// differ only in case count as one, and the spelling met first stands for them.
[[nodiscard]] ExtraValues distinctExtraValues(const AddressBook& book);

/// Whether the user has chosen anything at all.
[[nodiscard]] bool hasChoice(const ExtraChoice& choice);

/// Whether `contact` has, in every field with a choice, one of the chosen values. Here case counts, unlike
/// in distinctExtraValues(): a value that was not listed because of its case can't be chosen. Existing
/// contact lists are kept in step with that, so it must stay.
[[nodiscard]] bool matchesChoice(const ContactRecord& contact, const ExtraChoice& choice);

/// All contacts of `book` that match, in the order in which the book gives them.
[[nodiscard]] ContactSelection::Contacts contactsMatching(const AddressBook& book, const ExtraChoice& choice);

/// What the user is told who asks for contacts without choosing a value.
[[nodiscard]] QString nothingChosenText();

}  // namespace parlexo
