// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/extra_selection.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include <QCoreApplication>

#include "addressbook/core/contact_selection.h"
#include "contacts/address_book.h"

namespace parlexo {

namespace {

QStringList distinctValues(const AddressBook& book, std::size_t field) {
  QSet<QString> spellings;
  QSet<QString> folded;
  std::vector<QString> values;
  for (const auto& [name, contact] : book.contacts()) {
    const QString& value = contact.extra[field];
    // Most contacts share a few spellings. Finding those first avoids folding them again.
    if (value.isEmpty() || spellings.contains(value)) continue;
    spellings.insert(value);
    const QString foldedValue = value.toCaseFolded();
    if (folded.contains(foldedValue)) continue;
    folded.insert(foldedValue);
    values.push_back(value);
  }
  sortByName(values, [](const QString& value) { return value; });
  return {values.begin(), values.end()};
}

}  // namespace

ExtraValues distinctExtraValues(const AddressBook& book) {
  ExtraValues values;
  for (std::size_t field = 0; field < values.size(); ++field) values[field] = distinctValues(book, field);
  return values;
}

bool hasChoice(const ExtraChoice& choice) {
  return std::any_of(choice.begin(), choice.end(), [](const auto& values) { return !values.isEmpty(); });
}

bool matchesChoice(const ContactRecord& contact, const ExtraChoice& choice) {
  for (std::size_t field = 0; field < choice.size(); ++field) {
    if (choice[field].isEmpty()) continue;
    if (contact.extra[field].isEmpty() || !choice[field].contains(contact.extra[field])) return false;
  }
  return true;
}

ContactSelection::Contacts contactsMatching(const AddressBook& book, const ExtraChoice& choice) {
  ContactSelection::Contacts matching;
  for (const auto& [name, contact] : book.contacts()) {
    if (matchesChoice(contact, choice)) matching.push_back(&contact);
  }
  return matching;
}

QString nothingChosenText() {
  return QCoreApplication::translate(
      "ExtraSelection",
      "You have not selected one or more Extra properties you would like to filter your Contacts on.");
}

}  // namespace parlexo
