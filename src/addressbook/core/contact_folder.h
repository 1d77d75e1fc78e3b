// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// One folder of the address book's tree.
struct ContactFolder {
  enum class Kind {
    Root,
    Group,
    AllContacts,  ///< the parent of the read-only folders below
    Letter,       ///< all contacts whose names begin with one of A to Z
    Other,        ///< all contacts whose names begin with anything else
  };

  Kind kind = Kind::Root;
  QString name;  ///< the group's name, or the capital letter; empty for the others

  [[nodiscard]] bool isGroup() const { return kind == Kind::Group; }
  bool operator==(const ContactFolder&) const = default;
};

}  // namespace parlexo
