// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <utility>

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include "addressbook/core/addressbook_services.h"
#include "addressbook/core/contact_index.h"
#include "addressbook/core/contacts_flow.h"
#include "addressbook/screens/contact_rows_model.h"
#include "ui/export_button.h"
#include "ui/gradient_page.h"

class QLabel;
class QLayout;
class QMenu;
class QPlainTextEdit;
class QStackedWidget;

namespace parlexo {

class FolderTree;
class RowListView;
class SearchField;

/// The address book's page: folders and groups on the left, their contacts on the right, and everything
/// that can be done with them. A search shows what it finds in the whole address book, whatever the folder.
class CContactsPage final : public GradientPage {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the page.
  explicit CContactsPage(const AddressBookServices& services, QWidget* parent = nullptr);

  /// Asks for the path of the file to export to; replaced in tests.
  void setPathAsker(ExportButton::PathAsker asker) { askForPath_ = std::move(asker); }

  /// Reads the selected folder anew; selection and scroll position stay.
  void refresh() override;

 protected:
  /// Reads the address book, at first and when it has changed since the list was filled.
  void showEvent(QShowEvent* event) override;

 private:
  void createTree();
  void createList();
  void createSearch();
  void createMenu();
  void createLayout();
  [[nodiscard]] QLayout* contactsColumn();
  [[nodiscard]] QLayout* buttonRow();

  /// What the user made of the contact in the dialog; nothing when it was cancelled.
  [[nodiscard]] std::optional<ContactRecord> editedByUser(const ContactRecord& contact);
  void newContact();
  void newGroup();
  void importContacts();
  /// Saves what is shown: the found contacts, or those of the folder; all where it has no list.
  void exportContacts();
  void edit();
  void editContact(int row);
  void editGroup(const QString& group);
  void saveGroup(const GroupChanges& changes);
  void remove();
  void removeContacts(const QStringList& names);
  void removeGroup(const ContactFolder& folder);
  /// Empties the list before contacts are deleted, as it may be painted while the store waits for a file.
  void forgetContacts();

  /// The folder whose contacts the list shows: what a search finds belongs to no group.
  [[nodiscard]] ContactFolder shownFolder() const;
  [[nodiscard]] bool isSearching() const;
  void readBook();
  [[nodiscard]] ContactIndex::Contacts contactsToShow();
  /// Shows another folder or another search, with nothing selected.
  void showFresh();
  void showPanel();
  void showCount();
  void openMenu(QWidget& at, const QPoint& where);

  AddressBookServices services_;
  ContactsFlow flow_;
  ContactIndex index_;
  ContactRowsModel model_;
  std::optional<quint64> shownRevision_;  // none before the page is seen

  ExportButton::PathAsker askForPath_ = askForCsvPath;

  FolderTree* tree_ = nullptr;
  SearchField* search_ = nullptr;
  QStackedWidget* stack_ = nullptr;
  RowListView* list_ = nullptr;
  QPlainTextEdit* information_ = nullptr;
  QLabel* count_ = nullptr;
  QMenu* menu_ = nullptr;
};

}  // namespace parlexo
