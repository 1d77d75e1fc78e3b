// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/contacts_flow.h"

#include <set>

#include <QLatin1String>

#include "base/notifier.h"
#include "base/progress.h"
#include "contacts/address_book.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QString membershipText() {
  return ContactsFlow::tr("Adding/removing contacts in Group...");
}

QString deletionQuestion(const ContactFolder& folder, int count) {
  QString question =
      folder.isGroup()
          ? ContactsFlow::tr("Are you sure you want to remove this contact from the selected Group?")
          : ContactsFlow::tr(
                "Are you sure you want to delete this contact completely from your Address Book "
                "and all groups?");
  if (count == 1) return question;
  return question + u"\n\n"_s + ContactsFlow::tr("(%1 contacts are selected.)").arg(count);
}

bool canBeDeleted(const ContactFolder& folder) {
  return folder.isGroup() && folder.name != QLatin1String(personalContactsName);
}

}  // namespace

/// Shows the errors of one action, each kind once, because many writes may fail for the same reason.
class ContactsFlow::ErrorReport {
 public:
  explicit ErrorReport(Notifier& notifier) : notifier_(notifier) {}

  void add(const StoreResult& result) {
    for (const StoreError& error : result.errors())
      if (shown_.insert(error.operation).second) showError(error, notifier_);
  }

 private:
  Notifier& notifier_;
  std::set<StoreError::Operation> shown_;
};

bool ContactsFlow::acceptsNewContact(const ContactFolder& folder) const {
  if (folder.isGroup()) return true;
  services_.notifier.error(
      tr("You must select a \"Group\" or \"My Personal Contacts\" Folder. Contacts can only be "
         "added into these Folders."));
  return false;
}

bool ContactsFlow::acceptsImport(const ContactFolder& folder) const {
  if (folder.isGroup()) return true;
  services_.notifier.error(
      tr("You must select a \"Group\" or \"My Personal Contacts\" Folder. Contacts can only be "
         "imported into these Folders."));
  return false;
}

bool ContactsFlow::hasProperties(const ContactFolder& folder) const {
  if (folder.isGroup()) return true;
  services_.notifier.information(tr("Can only get properties on \"Group\" folders."));
  return false;
}

void ContactsFlow::addContact(const ContactRecord& contact, const QString& group) const {
  ErrorReport report(services_.notifier);
  report.add(services_.book.saveContact(contact));
  const ProgressScope progress(services_.progress, membershipText());
  report.add(services_.book.addMember(group, contact.name));
}

void ContactsFlow::changeContact(const QString& oldName, const ContactRecord& contact) const {
  ErrorReport(services_.notifier).add(services_.book.renameContact(oldName, contact));
}

void ContactsFlow::saveGroup(const GroupChanges& changes) const {
  ErrorReport report(services_.notifier);
  if (changes.isNew) {
    const ProgressScope progress(services_.progress, tr("Creating the Group..."));
    saveContacts(changes, report);
    report.add(services_.book.createGroup(changes.group));
    changeMembers(changes, report);
    return;
  }
  if (changes.added.isEmpty() && changes.removed.isEmpty()) {
    saveContacts(changes, report);
    return;
  }
  const ProgressScope progress(services_.progress, membershipText());
  saveContacts(changes, report);
  changeMembers(changes, report);
}

void ContactsFlow::saveContacts(const GroupChanges& changes, ErrorReport& report) const {
  for (const ContactRecord& contact : changes.contacts)
    report.add(
        services_.book.renameContact(contact.name == changes.newName ? QString() : contact.name, contact));
}

void ContactsFlow::changeMembers(const GroupChanges& changes, ErrorReport& report) const {
  for (const QString& name : changes.added) {
    refreshProgress();
    report.add(services_.book.addMember(changes.group, name));
  }
  for (const QString& name : changes.removed) {
    refreshProgress();
    report.add(services_.book.removeMember(changes.group, name));
  }
}

void ContactsFlow::refreshProgress() const {
  services_.progress.setText(services_.progress.text());
}

bool ContactsFlow::confirmDeletion(const ContactFolder& folder, int count) const {
  return services_.notifier.confirm(deletionQuestion(folder, count));
}

void ContactsFlow::deleteContacts(const ContactFolder& folder, const QStringList& names) const {
  ErrorReport report(services_.notifier);
  if (folder.isGroup()) {
    const ProgressScope progress(services_.progress, membershipText());
    changeMembers({.group = folder.name, .removed = names}, report);
    return;
  }
  const ProgressScope progress(services_.progress, tr("Deleting the contacts..."));
  for (const QString& name : names) {
    refreshProgress();
    report.add(services_.book.deleteContact(name));
  }
}

bool ContactsFlow::confirmGroupDeletion(const ContactFolder& folder) const {
  if (!canBeDeleted(folder)) {
    services_.notifier.error(
        tr("Select a \"Group\" Folder that you wish to delete. You can only delete Groups that "
           "you created."));
    return false;
  }
  return services_.notifier.confirm(tr("Are you sure you want to delete this group from your Address Book?"));
}

void ContactsFlow::deleteGroup(const QString& group) const {
  const ProgressScope progress(services_.progress, tr("Deleting the Group..."));
  ErrorReport(services_.notifier).add(services_.book.deleteGroup(group));
}

}  // namespace parlexo
