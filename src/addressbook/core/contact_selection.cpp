// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/contact_selection.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "addressbook/core/name_order.h"

namespace parlexo {

namespace {

bool isYes(const QString& flag) {
  return flag.compare(QLatin1String("Y"), Qt::CaseInsensitive) == 0;
}

struct ModeRule {
  QLatin1String mode;
  Eligibility isEligible;
};

constexpr ModeRule modeRules[] = {
    {QLatin1String("All"), [](const ContactRecord&) { return true; }},
    {QLatin1String("SMS"), [](const ContactRecord& contact) { return isYes(contact.supportsSms); }},
    {QLatin1String("Media"), [](const ContactRecord& contact) { return isYes(contact.supportsMedia); }},
    {QLatin1String("Fax"), [](const ContactRecord& contact) { return !contact.fax.isEmpty(); }},
    {QLatin1String("Phone"), [](const ContactRecord& contact) { return !contact.phone.isEmpty(); }},
};

}  // namespace

Eligibility eligibilityFor(QStringView mode) {
  const auto rule = std::find_if(std::begin(modeRules), std::end(modeRules),
                                 [mode](const ModeRule& candidate) { return candidate.mode == mode; });
  if (rule == std::end(modeRules)) return [](const ContactRecord&) { return false; };
  return rule->isEligible;
}

bool showsFaxNumbers(QStringView mode) {
  return mode.compare(QLatin1String("Fax"), Qt::CaseInsensitive) == 0;
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
