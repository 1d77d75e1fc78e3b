// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include <QString>
#include <QStringList>

#include "contacts/contact_record.h"

namespace parlexo {

/// The contact's number that a page sends to.
enum class RecipientNumber { Phone, Fax };

/// One entry of the Contacts box.
struct Recipient {
  QString name;
  QString number;

  /// "Name [number]", or only the name of an entry without a number, which a template may contain.
  [[nodiscard]] QString text() const {
    return number.isEmpty() ? name : name + QStringLiteral(" [") + number + QChar(u']');
  }
  bool operator==(const Recipient&) const = default;
};

/// The recipients of a send page: the entries in the Contacts box and, separately, the numbers to send to.
/// Clearing the box and loading a template change only the entries; selecting contacts replaces both lists;
/// removing recipients changes both.
class Recipients {
 public:
  /// Replaces entries and numbers by `contacts`, in their order. Contacts whose number does not begin with a
  /// plus sign are skipped; returns their names.
  QStringList select(std::span<const ContactRecord* const> contacts, RecipientNumber which);

  /// Removes the entries at `indexes`, which may be in any order; invalid ones are ignored. Also removes
  /// their numbers: those at the same indexes if both lists agree, otherwise the first equal number of each
  /// entry.
  void remove(const std::vector<int>& indexes);

  /// The count of distinct numbers that occur more than once.
  [[nodiscard]] int repeatedNumberCount() const;
  /// Removes every repetition of a number together with the entry at the same index. Does nothing if the
  /// counts of entries and numbers differ, because they can't be matched then.
  void removeRepeats();

  /// Removes all entries. The numbers stay until the next selection.
  void clearEntries() { entries_.clear(); }

  /// Replaces the entries by those of a template's display list; the numbers stay. Names may contain commas
  /// and brackets: an entry ends at a comma after a bracketed number, which begins with a plus sign.
  void setEntries(const QString& displayList);

  [[nodiscard]] const std::vector<Recipient>& entries() const { return entries_; }
  [[nodiscard]] const QStringList& numbers() const { return numbers_; }

  /// The texts of the entries, separated by commas.
  [[nodiscard]] QString displayList() const;
  /// The numbers separated by commas, as in a request to the gateway.
  [[nodiscard]] QString numbersList() const { return numbers_.join(QChar(u',')); }

  [[nodiscard]] bool haveEqualCounts() const;
  /// Returns true if the entries show exactly the numbers to send to.
  [[nodiscard]] bool listsAgree() const;

 private:
  std::vector<Recipient> entries_;
  QStringList numbers_;
};

}  // namespace parlexo
