// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/extra_selection.h"

#include <algorithm>
#include <cstddef>

#include "addressbook/core/name_order.h"
#include "contacts/address_book.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

/// Collects the values of one Extra field.
class ValueCollector {
 public:
  void add(const QString& value) {
    if (value.isEmpty()) return;
    // Most contacts share few spellings: those are found without folding again.
    if (spellings_.contains(value)) return;
    spellings_.insert(value);
    const QString folded = value.toCaseFolded();
    if (folded_.contains(folded)) return;
    folded_.insert(folded);
    values_.push_back(value);
  }

  [[nodiscard]] QStringList sorted() {
    sortByName(values_, [](const QString& value) { return value; });
    return {values_.begin(), values_.end()};
  }

 private:
  QSet<QString> spellings_;
  QSet<QString> folded_;
  std::vector<QString> values_;
};

}  // namespace

ExtraValues distinctExtraValues(const AddressBook& book) {
  std::array<ValueCollector, ContactRecord::extraCount> collectors;
  for (const auto& [name, contact] : book.contacts()) {
    for (std::size_t field = 0; field < collectors.size(); ++field)
      collectors[field].add(contact.extra[field]);
  }
  ExtraValues values;
  std::transform(collectors.begin(), collectors.end(), values.begin(),
                 [](ValueCollector& collector) { return collector.sorted(); });
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
  return u"You have not selected one or more Extra properties you would like to filter your Contacts on."_s;
}

}  // namespace parlexo
