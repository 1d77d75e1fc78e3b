// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/contacts_flow.h"

#include <QLatin1String>

#include "base/notifier.h"
#include "base/progress.h"
#include "contacts/address_book.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QString membershipText() {
  return u"Adding/removing contacts in Group..."_s;
}

QString deletionQuestion(const ContactFolder& folder, int count) {
  QString question = folder.isGroup()
                         ? u"Are you sure you want to remove this contact from the selected Group?"_s
                         : u"Are you sure you want to delete this contact completely from your Address Book "
                           "and all groups?"_s;
  if (count == 1) return question;
  return question + u"\n\n(%1 contacts are selected.)"_s.arg(count);
}

bool canBeDeleted(const ContactFolder& folder) {
  return folder.isGroup() && folder.name != QLatin1String(personalContactsName);
}

}  // namespace

bool ContactsFlow::acceptsNewContact(const ContactFolder& folder) const {
  if (folder.isGroup()) return true;
  services_.notifier.error(
      u"You must select a \"Group\" or \"My Personal Contacts\" Folder. Contacts can only be "
      "added into these Folders."_s);
  return false;
}

bool ContactsFlow::acceptsImport(const ContactFolder& folder) const {
  if (folder.isGroup()) return true;
  services_.notifier.error(
      u"You must select a \"Group\" or \"My Personal Contacts\" Folder. Contacts can only be "
      "imported into these Folders."_s);
  return false;
}

bool ContactsFlow::hasProperties(const ContactFolder& folder) const {
  if (folder.isGroup()) return true;
  services_.notifier.information(u"Can only get properties on \"Group\" folders."_s);
  return false;
}

void ContactsFlow::addContact(const ContactRecord& contact, const QString& group) const {
  services_.book.saveContact(contact);
  const ProgressScope progress(services_.progress, membershipText());
  services_.book.addMember(group, contact.name);
}

void ContactsFlow::changeContact(const QString& oldName, const ContactRecord& contact) const {
  const AddressBook::MessagesOnce once(services_.book);
  services_.book.renameContact(oldName, contact);
}

void ContactsFlow::saveGroup(const GroupChanges& changes) const {
  const AddressBook::MessagesOnce once(services_.book);
  if (changes.isNew) {
    const ProgressScope progress(services_.progress, u"Creating the Group..."_s);
    saveContacts(changes);
    services_.book.createGroup(changes.group);
    changeMembers(changes);
    return;
  }
  if (changes.added.isEmpty() && changes.removed.isEmpty()) {
    saveContacts(changes);
    return;
  }
  const ProgressScope progress(services_.progress, membershipText());
  saveContacts(changes);
  changeMembers(changes);
}

void ContactsFlow::saveContacts(const GroupChanges& changes) const {
  for (const ContactRecord& contact : changes.contacts)
    services_.book.renameContact(contact.name == changes.newName ? QString() : contact.name, contact);
}

void ContactsFlow::changeMembers(const GroupChanges& changes) const {
  for (const QString& name : changes.added) {
    keepAlive();
    services_.book.addMember(changes.group, name);
  }
  for (const QString& name : changes.removed) {
    keepAlive();
    services_.book.removeMember(changes.group, name);
  }
}

void ContactsFlow::keepAlive() const {
  services_.progress.setText(services_.progress.text());
}

bool ContactsFlow::confirmDeletion(const ContactFolder& folder, int count) const {
  return services_.notifier.confirm(deletionQuestion(folder, count));
}

void ContactsFlow::deleteContacts(const ContactFolder& folder, const QStringList& names) const {
  const AddressBook::MessagesOnce once(services_.book);
  if (folder.isGroup()) {
    const ProgressScope progress(services_.progress, membershipText());
    changeMembers({folder.name, false, {}, {}, names});
    return;
  }
  const ProgressScope progress(services_.progress, u"Deleting the contacts..."_s);
  for (const QString& name : names) {
    keepAlive();
    services_.book.deleteContact(name);
  }
}

bool ContactsFlow::confirmGroupDeletion(const ContactFolder& folder) const {
  if (!canBeDeleted(folder)) {
    services_.notifier.error(
        u"Select a \"Group\" Folder that you wish to delete. You can only delete Groups that "
        "you created."_s);
    return false;
  }
  return services_.notifier.confirm(u"Are you sure you want to delete this group from your Address Book?"_s);
}

void ContactsFlow::deleteGroup(const QString& group) const {
  const ProgressScope progress(services_.progress, u"Deleting the Group..."_s);
  services_.book.deleteGroup(group);
}

}  // namespace parlexo
