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

/// The "Contacts" page: the folder tree on the left, the contacts of the selected folder on the right, and
/// all operations on them. A search covers the whole address book, regardless of the selected folder.
class CContactsPage final : public GradientPage {
  Q_OBJECT

 public:
  /// The objects that `services` refers to must outlive the page.
  explicit CContactsPage(const AddressBookServices& services, QWidget* parent = nullptr);

  /// Replaces the file dialog of the export, for tests.
  void setPathAsker(ExportButton::PathAsker asker) { askForPath_ = std::move(asker); }

  /// Reloads the address book. Preserves selection and scroll position.
  void refresh() override;

 protected:
  /// Loads the address book when the page is shown for the first time or the book has changed.
  void showEvent(QShowEvent* event) override;

 private:
  void createTree();
  void createList();
  void createSearch();
  void createMenu();
  void createLayout();
  [[nodiscard]] QLayout* contactsColumn();
  [[nodiscard]] QLayout* buttonRow();

  /// Runs the details dialog. Returns the edited contact, or nullopt if the user cancelled.
  [[nodiscard]] std::optional<ContactRecord> runDetailsDialog(const ContactRecord& contact);
  void newContact();
  void newGroup();
  void importContacts();
  /// Exports the search result or the contacts of the selected folder; all contacts if the folder has no
  /// list.
  void exportContacts();
  void edit();
  void editContact(int row);
  void editGroup(const QString& group);
  void saveGroup(const GroupChanges& changes);
  void remove();
  void removeContacts(const QStringList& names);
  void removeGroup(const ContactFolder& folder);
  /// Empties the list before contacts are deleted, as it may be painted while the store waits for a file.
  void clearContacts();

  /// The displayed folder: "All Contacts" during a search, otherwise the selected one.
  [[nodiscard]] ContactFolder shownFolder() const;
  [[nodiscard]] bool isSearching() const;
  void readBook();
  [[nodiscard]] ContactIndex::Contacts contactsToShow();
  /// Shows the contacts of another folder or search, with nothing selected.
  void resetList();
  void showPanel();
  void showCount();
  void openMenu(QWidget& at, const QPoint& where);

  AddressBookServices services_;
  ContactsFlow flow_;
  ContactIndex index_;
  ContactRowsModel model_;
  std::optional<quint64> shownRevision_;  // nullopt until the page is first shown

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
