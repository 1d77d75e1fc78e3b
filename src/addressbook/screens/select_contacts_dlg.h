// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "addressbook/core/contact_selection.h"
#include "addressbook/core/selection_lists.h"
#include "addressbook/screens/contact_list_model.h"
#include "ui/gradient_page.h"

class QLabel;

namespace parlexo {

class AddressBook;
class CheckListView;
class Notifier;
class PictureButton;
class SearchField;

/// Selects contacts by ticking them, ticking whole groups, or choosing values of their Extra fields. Contacts
/// hidden by a search keep their ticks and count as selected.
class CSelectContactsDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// Offers the contacts of `book` that are eligible for `mode` (see isEligible()), with those of
  /// `initial` ticked. `book` and `notifier` must outlive the dialog.
  CSelectContactsDlg(const AddressBook& book, SelectionMode mode, const ContactSelection& initial,
                     Notifier& notifier, QWidget* parent = nullptr);

  /// The ticked contacts once the dialog has been accepted; otherwise `initial`.
  [[nodiscard]] const ContactSelection& selection() const { return selection_; }

  void accept() override;

 private:
  void createLists();
  void createSearches();
  void createButtons();
  void createLayout();
  void clearTicks();
  void showCount();
  void selectByExtra();

  const AddressBook& book_;
  Notifier& notifier_;
  ContactSelection selection_;
  SelectionLists lists_;
  GroupListModel groups_;
  ContactListModel contacts_;
  CheckListView* groupView_;
  CheckListView* contactView_;
  SearchField* groupSearch_;
  SearchField* contactSearch_;
  QLabel* count_;
  PictureButton* selectButton_;
  PictureButton* clearButton_;
  PictureButton* cancelButton_;
  PictureButton* extraButton_;
};

}  // namespace parlexo
