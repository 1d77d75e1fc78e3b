// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QTreeWidget>

#include "addressbook/core/contact_index.h"

namespace parlexo {

/// The folder tree of the address book: the root, its groups, and "All Contacts" with one folder per letter.
class FolderTree final : public QTreeWidget {
  Q_OBJECT

 public:
  explicit FolderTree(QWidget* parent = nullptr);

  /// Replaces the groups, in the given order. Preserves the selected folder or, if it no longer exists,
  /// selects the root. Does not emit folderChosen().
  void setGroups(const QStringList& names);

  [[nodiscard]] ContactFolder selected() const;
  /// Selects a folder; no-op if it does not exist.
  void select(const ContactFolder& folder);

 Q_SIGNALS:
  /// Another folder has been selected, by the user or by select().
  void folderChosen();

 private:
  void addFixedFolders();
  [[nodiscard]] QTreeWidgetItem* findItem(const ContactFolder& folder) const;

  QTreeWidgetItem* root_ = nullptr;
  QTreeWidgetItem* allContacts_ = nullptr;
};

}  // namespace parlexo
