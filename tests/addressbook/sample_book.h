// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QString>
#include <QStringList>

#include "contacts/address_book.h"
#include "contacts/contact_record.h"
#include "contacts/item_database.h"
#include "contacts/item_index_cache.h"
#include "contacts/lock_waiter.h"

namespace parlexo::test {

/// An address book in memory, filled contact by contact and group by group.
class SampleBook {
 public:
  using Extra = std::array<QString, ContactRecord::extraCount>;

  void addContact(const QString& name, const QString& phone = {}, const QString& sms = "N",
                  const QString& media = "N", const QString& fax = {}, const Extra& extra = {}) {
    book_.insertContact({name, phone, sms, media, fax, {}, extra});
  }
  void addGroup(const QString& name, const QStringList& members = {}) {
    book_.insertGroup(name);
    for (const QString& member : members) book_.insertMember(name, member);
  }

  [[nodiscard]] const AddressBook& book() const { return book_; }
  [[nodiscard]] AddressBook& book() { return book_; }

 private:
  ItemIndexCache cache_;
  SleepingLockWaiter waiter_;
  ItemDatabase database_{cache_, waiter_};
  AddressBook book_{QString(), database_};
};

/// The names in a list or selection of contacts.
template <class Contacts>
QStringList contactNames(const Contacts& contacts) {
  QStringList names;
  for (const ContactRecord* contact : contacts) names << contact->name;
  return names;
}

/// Ann: SMS, media and phone; bob: SMS in lower case, no phone; Cid: fax only; Dan: nothing; eva: media in
/// lower case and phone. "Team" has Ann, Cid and eva; "all" has everybody.
class FivePeople : public SampleBook {
 public:
  FivePeople() {
    addContact("Dan");
    addContact("Ann", "+61491570156", "Y", "Y");
    addContact("eva", "+61491570157", "N", "y");
    addContact("bob", "", "y", "N");
    addContact("Cid", "", "", "yes", "+61255501234");
    addGroup("Team", {"Ann", "Cid", "eva"});
    addGroup("all", {"Ann", "bob", "Cid", "Dan", "eva"});
  }
};

}  // namespace parlexo::test
