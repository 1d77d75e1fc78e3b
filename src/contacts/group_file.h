// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unordered_map>
#include <utility>

#include <QHashFunctions>  // std::hash of QString
#include <QString>
#include <QStringList>

#include "contacts/contact_record.h"

namespace parlexo {

/// A group of contacts: its name, its members by name, and its files. The members are owned by the address
/// book, which removes a contact from every group before deleting it.
class GroupFile {
 public:
  using Members = std::unordered_map<QString, const ContactRecord*>;

  /// `fileName` is the group's file name without the folder.
  GroupFile(QString name, const QString& fileName) : name_(std::move(name)), fileNames_(fileName) {}

  [[nodiscard]] const QString& name() const { return name_; }
  [[nodiscard]] const Members& members() const { return members_; }
  [[nodiscard]] bool contains(const QString& contactName) const { return members_.count(contactName) != 0; }

 private:
  friend class AddressBook;

  QString name_;
  // More than one if several file names decode to this group's name. Members are added to the first file.
  QStringList fileNames_;
  Members members_;
};

}  // namespace parlexo
