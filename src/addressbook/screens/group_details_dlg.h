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

/// Edits a group, a new one or one that exists: its members, and contacts on the way. Nothing is written
/// here; the caller writes the changes that come out.
class CGroupDetailsDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// Without a `group` a new one is begun. What `services` refers to must outlive the dialog.
  CGroupDetailsDlg(const AddressBookServices& services, const std::optional<QString>& group,
                   QWidget* parent = nullptr);

  /// What the user made of the group, once the dialog was accepted.
  [[nodiscard]] GroupChanges changes() const { return draft_.changes(); }

  /// Closes. When something is wrong with the name, shows a message and stays open.
  void accept() override;

 private:
  void createControls();
  void createLayout();
  [[nodiscard]] QLayout* nameRows();
  [[nodiscard]] QLayout* buttonColumn();
  void select();
  void remove();
  void showProperties();
  /// Null for a new contact.
  void editContact(const ContactRecord* member);
  void showMembers(const QStringList& selectedNames);
  void enableButtons();
  /// Shows below the name what is wrong with it as long as the group could not keep it.
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
