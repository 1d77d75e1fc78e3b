// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QTreeWidget>

#include "addressbook/core/contact_index.h"

namespace parlexo {

/// The folders of the address book: the root, its groups, and "All Contacts" with its letters.
class FolderTree final : public QTreeWidget {
  Q_OBJECT

 public:
  explicit FolderTree(QWidget* parent = nullptr);

  /// Shows these groups, in this order; the selected folder stays as far as it still exists, else the root
  /// takes its place. Nothing is told of that.
  void setGroups(const QStringList& names);

  [[nodiscard]] ContactFolder selected() const;
  /// Selects a folder that exists; another one changes nothing.
  void select(const ContactFolder& folder);

 Q_SIGNALS:
  /// The user, or select(), has chosen another folder.
  void folderChosen();

 private:
  void addFixedFolders();
  [[nodiscard]] QTreeWidgetItem* itemOf(const ContactFolder& folder) const;

  QTreeWidgetItem* root_ = nullptr;
  QTreeWidgetItem* allContacts_ = nullptr;
};

}  // namespace parlexo
