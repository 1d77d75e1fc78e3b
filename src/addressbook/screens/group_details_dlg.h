#pragma once

#include <QString>

#include "addressbook/core/addressbook_services.h"
#include "addressbook/core/group_draft.h"
#include "addressbook/screens/contact_rows_model.h"
#include "ui/gradient_page.h"

class QLayout;
class QLineEdit;

namespace parlexo {

class PictureButton;
class RowListView;

/// Edits a group, a new one or one that exists: its members, and contacts on the way. Nothing is written
/// here; the caller writes the changes that come out.
class CGroupDetailsDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// An empty `group` begins a new one. What `services` refers to must outlive the dialog.
  CGroupDetailsDlg(const AddressBookServices& services, const QString& group, QWidget* parent = nullptr);

  /// What the user made of the group, once the dialog was accepted.
  [[nodiscard]] GroupChanges changes() const { return draft_.changes(); }

  /// Closes; when something is wrong with the name, tells the user and stays open.
  void accept() override;

 private:
  void createControls();
  void createLayout();
  [[nodiscard]] QLayout* buttonColumn();
  void select();
  void remove();
  void showProperties();
  /// Without a name: a new one.
  void editContact(const ContactRecord& contact);
  void showMembers(const QStringList& selectedNames);
  void enableButtons();

  AddressBookServices services_;
  GroupDraft draft_;
  ContactRowsModel model_;
  QLineEdit* name_ = nullptr;
  RowListView* list_ = nullptr;
  PictureButton* removeButton_ = nullptr;
  PictureButton* propertiesButton_ = nullptr;
};

}  // namespace parlexo
