// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "addressbook/screens/check_list_model.h"

namespace parlexo {

/// Model of the "Contacts:" list of the contact selection dialog: check box, name, phone or fax number.
class ContactListModel final : public CheckListModel {
  Q_OBJECT

 public:
  /// `lists` must outlive the model. `mode` determines whether phone or fax numbers are shown; the column
  /// heading is "Phone" in both cases.
  ContactListModel(SelectionLists& lists, SelectionMode mode, QObject* parent = nullptr);

 private:
  [[nodiscard]] QString entryCell(int entry, int column) const override;
  [[nodiscard]] bool isEntryTicked(int entry) const override;
  void setEntryTicked(int entry, bool ticked) override;
  void addSearchedFields(int entry, TextSearch& search) const override;

  SelectionLists& lists_;
  bool showsFax_;
};

/// Model of the "Groups:" list of the contact selection dialog: check box and name. Ticking a group also
/// ticks its members.
class GroupListModel final : public CheckListModel {
  Q_OBJECT

 public:
  /// `lists` must outlive the model.
  explicit GroupListModel(SelectionLists& lists, QObject* parent = nullptr);

 Q_SIGNALS:
  /// The ticks of these entries of the contact list may have changed.
  void contactTicksChanged(parlexo::RowSpan rows);

 private:
  [[nodiscard]] QString entryCell(int entry, int column) const override;
  [[nodiscard]] bool isEntryTicked(int entry) const override;
  void setEntryTicked(int entry, bool ticked) override;
  void addSearchedFields(int entry, TextSearch& search) const override;

  SelectionLists& lists_;
};

}  // namespace parlexo
