// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "addressbook/core/contact_selection.h"
#include "addressbook/core/extra_selection.h"
#include "contacts/contact_record.h"
#include "ui/gradient_page.h"

class QGridLayout;
class QLabel;

namespace parlexo {

class AddressBook;
class ExtraValueBox;
class Notifier;

/// Selects all contacts whose Extra fields have the chosen values. Values of one field are alternatives;
/// every field with a chosen value must match.
class CSelectByExtraDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// Offers the values used in `book`. `book` and `notifier` must outlive the dialog.
  CSelectByExtraDlg(const AddressBook& book, Notifier& notifier, QWidget* parent = nullptr);

  /// The matching contacts in the order of the book; empty until the dialog has been accepted.
  [[nodiscard]] const ContactSelection::Contacts& contacts() const { return matching_; }

  /// Closes the dialog. Shows a warning and stays open if no value is chosen.
  void accept() override;

 private:
  void addField(QGridLayout& grid, int field, const QStringList& values);
  void addBottomRow(QGridLayout& grid, int row);
  [[nodiscard]] ExtraChoice choice() const;
  void showCount();

  const AddressBook& book_;
  Notifier& notifier_;
  std::array<ExtraValueBox*, ContactRecord::extraCount> boxes_{};
  QLabel* count_;
  ContactSelection::Contacts matching_;
};

}  // namespace parlexo
