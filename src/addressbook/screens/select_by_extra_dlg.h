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

/// Lets the user pick every contact whose Extra fields carry chosen values: values within one field are
/// alternatives, and all fields with a choice must match.
class CSelectByExtraDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// Offers the values that the contacts of `book` have. `book` and `notifier` must outlive the dialog.
  CSelectByExtraDlg(const AddressBook& book, Notifier& notifier, QWidget* parent = nullptr);

  /// The contacts that match, in the order of the book, once the dialog was accepted; empty before.
  [[nodiscard]] const ContactSelection::Contacts& contacts() const { return matching_; }

  /// Closes with the matching contacts; without any chosen value it tells the user and stays open.
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
