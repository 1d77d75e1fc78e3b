// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/folder_tree.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTreeWidgetItemIterator>

#include "addressbook/core/contact_selection.h"
#include "contacts/address_book.h"
#include "ui/list_style.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int kindRole = Qt::UserRole;
constexpr int nameRole = Qt::UserRole + 1;

ContactFolder toFolder(const QTreeWidgetItem& item) {
  return {static_cast<ContactFolder::Kind>(item.data(0, kindRole).toInt()),
          item.data(0, nameRole).toString()};
}

QTreeWidgetItem* createItem(const QString& text, const ContactFolder& folder) {
  auto* item = new QTreeWidgetItem({text});
  item->setData(0, kindRole, static_cast<int>(folder.kind));
  item->setData(0, nameRole, folder.name);
  item->setToolTip(0, text);
  return item;
}

}  // namespace

FolderTree::FolderTree(QWidget* parent) : QTreeWidget(parent) {
  setObjectName(u"folderTree"_s);
  setAccessibleName(tr("Folders"));
  setColumnCount(1);
  setHeaderHidden(true);
  styleList(*this);
  addFixedFolders();
  setCurrentItem(root_);
  connect(this, &QTreeWidget::currentItemChanged, this, &FolderTree::folderChosen);
}

void FolderTree::addFixedFolders() {
  root_ = createItem(tr("Address Book"), {ContactFolder::Kind::Root, {}});
  addTopLevelItem(root_);
  allContacts_ = createItem(QLatin1String(allContactsName), {ContactFolder::Kind::AllContacts, {}});
  root_->addChild(allContacts_);
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const QString name{QLatin1Char(letter)};
    allContacts_->addChild(createItem(name, {ContactFolder::Kind::Letter, name}));
  }
  allContacts_->addChild(createItem(tr("Other"), {ContactFolder::Kind::Other, {}}));
  root_->setExpanded(true);
}

void FolderTree::setGroups(const QStringList& names) {
  const QSignalBlocker blocker(this);
  const ContactFolder before = selected();
  while (root_->child(0) != allContacts_) delete root_->child(0);
  QList<QTreeWidgetItem*> groups;
  for (const QString& name : names)
    groups.append(createItem(shownName(name), {ContactFolder::Kind::Group, name}));
  root_->insertChildren(0, groups);
  QTreeWidgetItem* item = findItem(before);
  setCurrentItem(item ? item : root_);
}

ContactFolder FolderTree::selected() const {
  return currentItem() ? toFolder(*currentItem()) : ContactFolder();
}

void FolderTree::select(const ContactFolder& folder) {
  if (QTreeWidgetItem* item = findItem(folder)) setCurrentItem(item);
}

QTreeWidgetItem* FolderTree::findItem(const ContactFolder& folder) const {
  for (QTreeWidgetItemIterator item(root_); *item; ++item)
    if (toFolder(**item) == folder) return *item;
  return nullptr;
}

}  // namespace parlexo
