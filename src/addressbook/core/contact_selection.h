// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>

#include "contacts/contact_record.h"

namespace parlexo {

/// Which contacts a list offers.
enum class SelectionMode {
  All,
  Sms,    ///< those that accept SMS
  Media,  ///< those that accept MMS and WAP push
  Fax,    ///< those with a fax number
  Phone,  ///< those with a phone number
};

/// Returns whether a list in `mode` offers `contact`.
[[nodiscard]] bool isEligible(const ContactRecord& contact, SelectionMode mode);

/// A set of picked contacts in the order of the selection dialog's list: by name without regard to case,
/// names that differ only in case by their characters' numbers. It does not own the contacts; they must
/// outlive it.
class ContactSelection {
 public:
  using Contacts = std::vector<const ContactRecord*>;

  ContactSelection() = default;
  /// The given contacts, in any order and none null; of several with one name the first is kept.
  explicit ContactSelection(Contacts contacts);
  /// Likewise for contacts that already stand in the order of the list, each name once.
  [[nodiscard]] static ContactSelection ofSorted(Contacts contacts);

  [[nodiscard]] Contacts::const_iterator begin() const { return contacts_.begin(); }
  [[nodiscard]] Contacts::const_iterator end() const { return contacts_.end(); }
  [[nodiscard]] std::size_t size() const { return contacts_.size(); }
  [[nodiscard]] bool isEmpty() const { return contacts_.empty(); }
  /// Whether a contact of exactly this name is picked.
  [[nodiscard]] bool contains(const QString& name) const;

 private:
  Contacts contacts_;
};

}  // namespace parlexo
