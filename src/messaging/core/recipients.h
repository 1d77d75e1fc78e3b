// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include <QString>
#include <QStringList>

#include "contacts/contact_record.h"

namespace parlexo {

/// Which number of a contact a page sends to.
enum class RecipientNumber { Phone, Fax };

/// One entry of the Contacts box.
struct Recipient {
  QString name;
  QString number;

  /// "Name [number]"; the name alone where a template held no number.
  [[nodiscard]] QString text() const {
    return number.isEmpty() ? name : name + QStringLiteral(" [") + number + QChar(u']');
  }
  bool operator==(const Recipient&) const = default;
};

/// The recipients of a send page: the entries that the Contacts box shows, and beside them the numbers
/// that are sent. The two are kept apart on purpose: clearing the box and loading a template change the
/// entries alone, while a selection replaces both and a removal takes from both.
class Recipients {
 public:
  /// Replaces entries and numbers by the selected contacts, in their order. Returns the names of those
  /// whose number does not begin with a plus sign; they become no recipients.
  QStringList select(std::span<const ContactRecord* const> contacts, RecipientNumber which);

  /// Removes the entries with these indexes (in any order; those out of range are passed over) and their
  /// numbers: the numbers at the same places while both lists agree, otherwise the first equal number of
  /// each, if there is one.
  void remove(const std::vector<int>& indexes);

  /// How many different numbers would get the message more than once.
  [[nodiscard]] int repeatedNumberCount() const;
  /// Removes every number that stands further ahead already, and the entry at the same place. Does nothing
  /// while there are not as many entries as numbers, since nobody could tell which belong together.
  void removeRepeats();

  /// Empties the Contacts box; the numbers stay until the next selection.
  void clearEntries() { entries_.clear(); }

  /// Replaces the entries by those of a display list, as a template holds it; the numbers stay. A name may
  /// hold commas and brackets: an entry ends only at a comma behind a number in brackets, and a number
  /// begins with a plus sign.
  void setEntries(const QString& displayList);

  [[nodiscard]] const std::vector<Recipient>& entries() const { return entries_; }
  [[nodiscard]] const QStringList& numbers() const { return numbers_; }

  /// The entries joined by single commas; empty when the box is.
  [[nodiscard]] QString displayList() const;
  /// The numbers joined by single commas, as the gateway takes them.
  [[nodiscard]] QString numbersList() const { return numbers_.join(QChar(u',')); }

  /// Whether there are as many entries as numbers.
  [[nodiscard]] bool haveEqualCounts() const;
  /// Whether the entries show exactly the numbers that are sent.
  [[nodiscard]] bool listsAgree() const;

 private:
  std::vector<Recipient> entries_;
  QStringList numbers_;
};

}  // namespace parlexo
