// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "addressbook/screens/check_list_model.h"

namespace parlexo {

/// The "Contacts:" list of the contact selection dialog: check box, name, and phone or fax number.
class ContactListModel final : public CheckListModel {
  Q_OBJECT

 public:
  /// `lists` must outlive the model; `mode` decides whether phone or fax numbers are shown,
  /// in a column that is called "Phone" either way.
  ContactListModel(SelectionLists& lists, SelectionMode mode, QObject* parent = nullptr);

 private:
  [[nodiscard]] QString entryCell(int entry, int column) const override;
  [[nodiscard]] bool isEntryTicked(int entry) const override;
  void setEntryTicked(int entry, bool ticked) override;
  void addSearchedFields(int entry, TextSearch& search) const override;

  SelectionLists& lists_;
  bool showsFax_;
};

}  // namespace parlexo
