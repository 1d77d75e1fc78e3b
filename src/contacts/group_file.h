#pragma once

#include <unordered_map>
#include <utility>

#include <QHashFunctions>  // std::hash of QString
#include <QString>

#include "contacts/contact_record.h"

namespace parlexo {

/// One group of contacts: its name and its members by name. The members belong to the address book, which
/// takes a contact out of every group before it goes.
class GroupFile {
 public:
  using Members = std::unordered_map<QString, const ContactRecord*>;

  explicit GroupFile(QString name) : name_(std::move(name)) {}

  [[nodiscard]] const QString& name() const { return name_; }
  [[nodiscard]] const Members& members() const { return members_; }
  [[nodiscard]] bool contains(const QString& contactName) const { return members_.count(contactName) != 0; }

 private:
  friend class AddressBook;

  QString name_;
  Members members_;
};

}  // namespace parlexo
