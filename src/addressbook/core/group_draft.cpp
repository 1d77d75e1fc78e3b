// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/group_draft.h"

#include <algorithm>
#include <utility>

#include <QLatin1String>
#include <QSet>

#include "addressbook/core/contact_selection.h"
#include "contacts/address_book.h"
#include "contacts/contact_file_format.h"

namespace parlexo {

GroupDraft::GroupDraft(const AddressBook& book, const std::optional<QString>& name)
    : book_(book), isNew_(!name), name_(name.value_or(QString())) {
  const GroupFile* group = isNew_ ? nullptr : book.findGroup(name_);
  if (!group) return;
  Contacts members;
  for (const auto& [memberName, contact] : group->members()) members.push_back(contact);
  setMembers(std::move(members));
}

void GroupDraft::setMembers(Contacts members) {
  sortByName(members, [](const ContactRecord* contact) { return contact->name; });
  members_ = std::move(members);
}

const ContactRecord* GroupDraft::current(const ContactRecord* contact) const {
  const auto found = pending_.find(contact->name);
  return found == pending_.end() ? contact : &found->second;
}

ContactSelection GroupDraft::selection() const {
  Contacts picked;
  for (const ContactRecord* member : members_)
    if (const ContactRecord* contact = book_.findContact(member->name)) picked.push_back(contact);
  return ContactSelection::fromSorted(std::move(picked));
}

bool GroupDraft::isContactNameTaken(const QString& name) const {
  return book_.findContact(name) || pending_.count(name) != 0;
}

void GroupDraft::setSelection(const ContactSelection& picked) {
  Contacts members;
  for (const ContactRecord* contact : picked) members.push_back(current(contact));
  for (const auto& [name, contact] : pending_)
    if (!book_.findContact(name)) members.push_back(&contact);
  setMembers(std::move(members));
}

void GroupDraft::remove(const QStringList& names) {
  const QSet<QString> leaving(names.begin(), names.end());
  std::erase_if(members_, [&leaving](const ContactRecord* member) { return leaving.contains(member->name); });
  for (const QString& name : names)
    if (!book_.findContact(name)) pending_.erase(name);
  if (leaving.contains(newName_)) newName_.clear();
}

void GroupDraft::put(const ContactRecord& contact) {
  const ContactRecord& saved = pending_[contact.name] = contact;
  Contacts members = std::move(members_);
  std::erase_if(members, [&saved](const ContactRecord* member) {
    return member == &saved || member->name == saved.name;
  });
  members.push_back(&saved);
  setMembers(std::move(members));
}

void GroupDraft::putNameless(const ContactRecord& contact) {
  std::erase_if(members_, [](const ContactRecord* member) { return member->name.isEmpty(); });
  newName_ = contact.name;
  put(contact);
}

QString GroupDraft::setName(const QString& typed) {
  if (!isNew_) return {};
  name_ = typed.trimmed();
  if (name_.isEmpty()) return tr("Group name cannot be blank");
  if (isNameInUse(name_)) return tr("A group with this name already exists.");
  return {};
}

// Groups whose names differ only in case would share a file on a case-insensitive file system.
bool GroupDraft::isNameInUse(const QString& name) const {
  const auto isSame = [&name](const QString& other) { return name.compare(other, Qt::CaseInsensitive) == 0; };
  return isSame(QLatin1String(allContactsName)) ||
         std::any_of(book_.groups().begin(), book_.groups().end(),
                     [&isSame](const auto& group) { return isSame(group.first); });
}

std::optional<UnstableGroupName> GroupDraft::unstableName(const QString& typed) const {
  const QString name = typed.trimmed();
  const QString afterRestart = groupNameAfterRestart(name);
  if (!isNew_ || afterRestart == name) return std::nullopt;
  const auto different = std::mismatch(name.begin(), name.end(), afterRestart.begin(), afterRestart.end());
  return UnstableGroupName{afterRestart, stableGroupName(name), different.first - name.begin()};
}

GroupChanges GroupDraft::changes() const {
  GroupChanges changes{.group = name_, .isNew = isNew_, .newName = newName_};
  for (const auto& [name, contact] : pending_) changes.contacts.push_back(contact);
  sortByName(changes.contacts, [](const ContactRecord& contact) { return contact.name; });
  const GroupFile* before = isNew_ ? nullptr : book_.findGroup(name_);
  QSet<QString> staying;
  for (const ContactRecord* member : members_) {
    staying.insert(member->name);
    if (!before || !before->contains(member->name)) changes.added.append(member->name);
  }
  if (!before) return changes;
  for (const auto& [name, contact] : before->members())
    if (!staying.contains(name)) changes.removed.append(name);
  changes.removed.sort();
  return changes;
}

}  // namespace parlexo
