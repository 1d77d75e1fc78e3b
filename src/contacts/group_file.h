// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unordered_map>
#include <utility>

#include <QHashFunctions>  // std::hash of QString
#include <QString>
#include <QStringList>

#include "contacts/contact_record.h"

namespace parlexo {

/// One group of contacts: its name, its members by name, and the files that hold it. The members belong to
/// the address book, which removes a contact from every group before it deletes the contact.
class GroupFile {
 public:
  using Members = std::unordered_map<QString, const ContactRecord*>;

  /// `fileName` is the group's file, without the folder.
  GroupFile(QString name, const QString& fileName) : name_(std::move(name)), fileNames_(fileName) {}

  [[nodiscard]] const QString& name() const { return name_; }
  [[nodiscard]] const Members& members() const { return members_; }
  [[nodiscard]] bool contains(const QString& contactName) const { return members_.count(contactName) != 0; }

 private:
  friend class AddressBook;

  QString name_;
  // Several where the names of several files read as the same group. Members are added to the first.
  QStringList fileNames_;
  Members members_;
};

}  // namespace parlexo
