// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/contact_selection.h"

#include <algorithm>
#include <utility>

#include "addressbook/core/name_order.h"

namespace parlexo {

namespace {

bool isYes(const QString& flag) {
  return flag.compare(QLatin1String("Y"), Qt::CaseInsensitive) == 0;
}

}  // namespace

bool isEligible(const ContactRecord& contact, SelectionMode mode) {
  switch (mode) {
    case SelectionMode::All:
      return true;
    case SelectionMode::Sms:
      return isYes(contact.supportsSms);
    case SelectionMode::Media:
      return isYes(contact.supportsMedia);
    case SelectionMode::Fax:
      return !contact.fax.isEmpty();
    case SelectionMode::Phone:
      return !contact.phone.isEmpty();
  }
  Q_UNREACHABLE();
}

ContactSelection::ContactSelection(Contacts contacts) : contacts_(std::move(contacts)) {
  sortByName(contacts_, [](const ContactRecord* contact) { return contact->name; });
  const auto sameName = [](const ContactRecord* a, const ContactRecord* b) { return a->name == b->name; };
  contacts_.erase(std::unique(contacts_.begin(), contacts_.end(), sameName), contacts_.end());
}

ContactSelection ContactSelection::ofSorted(Contacts contacts) {
  ContactSelection selection;
  selection.contacts_ = std::move(contacts);
  return selection;
}

bool ContactSelection::contains(const QString& name) const {
  const auto before = [](const ContactRecord* contact, const NameKey& key) {
    return NameKey(contact->name) < key;
  };
  const auto found = std::lower_bound(contacts_.begin(), contacts_.end(), NameKey(name), before);
  return found != contacts_.end() && (*found)->name == name;
}

}  // namespace parlexo
