// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QString>

#include "addressbook/core/addressbook_services.h"
#include "addressbook/core/group_draft.h"
#include "addressbook/screens/contact_rows_model.h"
#include "ui/gradient_page.h"

class QLabel;
class QLayout;
class QLineEdit;

namespace parlexo {

class HyperlinkLabel;
class PictureButton;
class RowListView;

/// Edits a new or existing group: its members, and their contact details. The dialog saves nothing; the
/// caller writes changes().
class CGroupDetailsDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// Without `group` the dialog creates a new one. The objects that `services` refers to must outlive the
  /// dialog.
  CGroupDetailsDlg(const AddressBookServices& services, const std::optional<QString>& group,
                   QWidget* parent = nullptr);

  /// The changes to the group; valid once the dialog has been accepted.
  [[nodiscard]] GroupChanges changes() const { return draft_.changes(); }

  /// Closes the dialog if the name is valid. Otherwise reports the error and stays open.
  void accept() override;

 private:
  void createControls();
  void createLayout();
  [[nodiscard]] QLayout* nameRows();
  [[nodiscard]] QLayout* buttonColumn();
  void select();
  void remove();
  void showProperties();
  /// `member` is null for a new contact.
  void editContact(const ContactRecord* member);
  void showMembers(const QStringList& selectedNames);
  void enableButtons();
  /// Shows a warning below the name if it would change after a restart.
  void checkName();

  AddressBookServices services_;
  GroupDraft draft_;
  ContactRowsModel model_;
  QLineEdit* name_ = nullptr;
  QLabel* nameWarning_ = nullptr;
  HyperlinkLabel* useSuggestion_ = nullptr;
  PictureButton* ok_ = nullptr;
  RowListView* list_ = nullptr;
  PictureButton* removeButton_ = nullptr;
  PictureButton* propertiesButton_ = nullptr;
};

}  // namespace parlexo
