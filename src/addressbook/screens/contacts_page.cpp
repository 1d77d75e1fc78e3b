// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/contacts_page.h"

#include <algorithm>
#include <functional>
#include <utility>

#include <QApplication>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "addressbook/core/contact_export.h"
#include "addressbook/core/contact_selection.h"
#include "addressbook/screens/contact_details_dlg.h"
#include "addressbook/screens/folder_tree.h"
#include "addressbook/screens/group_details_dlg.h"
#include "addressbook/screens/import_contacts_dlg.h"
#include "base/notifier.h"
#include "contacts/address_book.h"
#include "ui/list_style.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/row_list_view.h"
#include "ui/search_field.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QString informationOn(const ContactFolder& folder) {
  const QString lower(8, u'\n');
  if (folder.kind == ContactFolder::Kind::Root) return lower + u"Your Address Book for all your Contacts"_s;
  return lower +
         u"All your contacts sorted in Alphabetic order. You cannot create contacts\n"
         "under these folders as they are READONLY. Deleting or modifying is permitted"_s;
}

bool hasList(const ContactFolder& folder) {
  return folder.kind != ContactFolder::Kind::Root && folder.kind != ContactFolder::Kind::AllContacts;
}

// A key that is held down, or pressed twice, arrives here until the dialog that it opened has the focus.
bool isBehindDialog(const QWidget& widget) {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal && modal != widget.window();
}

void onKey(QWidget* widget, const QKeySequence& key, const std::function<void()>& action) {
  auto* shortcut = new QShortcut(key, widget);
  shortcut->setContext(Qt::WidgetShortcut);
  shortcut->setAutoRepeat(false);
  QObject::connect(shortcut, &QShortcut::activated, widget, [widget, action] {
    if (!isBehindDialog(*widget)) action();
  });
}

QString countText(int count, int selected, bool isSearching) {
  QString text = count == 1 ? u"1 contact"_s : u"%1 contacts"_s.arg(count);
  if (isSearching) text += u" found in the whole address book"_s;
  return selected < 2 ? text : text + u", %1 selected"_s.arg(selected);
}

}  // namespace

CContactsPage::CContactsPage(const AddressBookServices& services, QWidget* parent)
    : GradientPage(parent), services_(services), flow_(services), index_(services.book) {
  setObjectName(u"contactsPage"_s);
  createTree();
  createList();
  createSearch();
  createMenu();
  createLayout();
}

void CContactsPage::createTree() {
  tree_ = new FolderTree(this);
  connect(tree_, &FolderTree::folderChosen, this, [this] {
    const QSignalBlocker blocker(search_);
    search_->clear();
    showFresh();
  });
  tree_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(tree_, &QWidget::customContextMenuRequested, this, [this](const QPoint& where) {
    if (QTreeWidgetItem* item = tree_->itemAt(where)) tree_->setCurrentItem(item);
    // Whoever points at a folder means the folder.
    list_->clearSelection();
    openMenu(*tree_->viewport(), where);
  });
  onKey(tree_, QKeySequence::Delete, [this] {
    list_->clearSelection();
    remove();
  });
}

void CContactsPage::createList() {
  list_ = new RowListView(
      model_, [this](int row) { return model_.contact(row).name; }, u"Contacts"_s, this);
  list_->setObjectName(u"contactList"_s);
  // The longest international number has 15 digits.
  const int numberWidth = fittingColumnWidth(*list_, 120, u"+000000000000000"_s);
  list_->setColumnWidths({150, numberWidth, 40, 40, numberWidth});
  connect(list_, &QAbstractItemView::doubleClicked, this, &CContactsPage::edit);
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) onKey(list_, QKeySequence(key), [this] { edit(); });
  onKey(list_, QKeySequence::Delete, [this] { remove(); });
  connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &CContactsPage::showCount);
  list_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& where) { openMenu(*list_->viewport(), where); });

  information_ = new QPlainTextEdit(this);
  information_->setObjectName(u"informationPanel"_s);
  information_->setAccessibleName(u"Information"_s);
  information_->setReadOnly(true);
  information_->setTabChangesFocus(true);
  QPalette palette = information_->palette();
  palette.setColor(QPalette::Base, look::listBackground);
  information_->setPalette(palette);
}

void CContactsPage::createSearch() {
  search_ = new SearchField(u"Search all contacts: name, number or Extra"_s, *list_, this);
  search_->setObjectName(u"contactSearch"_s);
  connect(search_, &QLineEdit::textChanged, this, &CContactsPage::showFresh);
  auto* find = new QShortcut(QKeySequence(QKeySequence::Find), this);
  connect(find, &QShortcut::activated, this, [this] {
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
  });
  count_ = new QLabel(this);
  count_->setObjectName(u"countLine"_s);
}

void CContactsPage::createMenu() {
  menu_ = new QMenu(this);
  menu_->setObjectName(u"contactsMenu"_s);
  const auto add = [this](const QString& text, void (CContactsPage::*action)()) {
    connect(menu_->addAction(text), &QAction::triggered, this, action);
  };
  add(u"New Contact..."_s, &CContactsPage::newContact);
  add(u"New Group..."_s, &CContactsPage::newGroup);
  menu_->addSeparator();
  add(u"Edit..."_s, &CContactsPage::edit);
  add(u"Delete"_s, &CContactsPage::remove);
}

void CContactsPage::openMenu(QWidget& at, const QPoint& where) {
  menu_->popup(at.mapToGlobal(where));
}

void CContactsPage::createLayout() {
  auto* contacts = new QWidget(this);
  contacts->setLayout(contactsColumn());
  auto* halves = new QSplitter(this);
  halves->setChildrenCollapsible(false);
  halves->addWidget(tree_);
  halves->addWidget(contacts);
  halves->setStretchFactor(1, 1);
  tree_->setMinimumWidth(dialogUnits(*this, 80, 0).width());
  halves->setSizes({dialogUnits(*this, 120, 0).width(), list_->fittingWidth()});
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 10, 14, 12);
  layout->setSpacing(10);
  layout->addWidget(halves, 1);
  layout->addLayout(buttonRow());
  setTabOrder(tree_, search_);
  setTabOrder(search_, list_);
  setTabOrder(list_, information_);
}

QLayout* CContactsPage::contactsColumn() {
  stack_ = new QStackedWidget(this);
  stack_->addWidget(list_);
  stack_->addWidget(information_);
  auto* column = new QVBoxLayout;
  column->setContentsMargins({});
  column->setSpacing(6);
  column->addLayout(searchRow(u"&Find:"_s, *search_));
  column->addWidget(stack_, 1);
  column->addWidget(count_);
  return column;
}

QLayout* CContactsPage::buttonRow() {
  auto* row = new QHBoxLayout;
  const auto add = [this, row](const QString& name, const QString& text, void (CContactsPage::*action)()) {
    PictureButton* button = addButton(*row, name, text);
    connect(button, &PictureButton::clicked, this, action);
    return button;
  };
  add(u"newContactButton"_s, u"&New Contact..."_s, &CContactsPage::newContact);
  add(u"newGroupButton"_s, u"New &Group..."_s, &CContactsPage::newGroup);
  add(u"importButton"_s, u"&Import..."_s, &CContactsPage::importContacts);
  add(u"exportButton"_s, u"E&xport..."_s, &CContactsPage::exportContacts);
  row->addStretch(1);
  add(u"editButton"_s, u"&Edit..."_s, &CContactsPage::edit);
  add(u"deleteButton"_s, u"&Delete"_s, &CContactsPage::remove);
  auto* details = add(u"detailsButton"_s, u"D&etails"_s, &CContactsPage::edit);
  // "&Edit..." does the same under the same key; with two to claim it, the key would only move the focus.
  details->setShortcut({});
  return row;
}

bool CContactsPage::isSearching() const {
  return !search_->text().trimmed().isEmpty();
}

ContactFolder CContactsPage::shownFolder() const {
  return isSearching() ? ContactFolder{ContactFolder::Kind::AllContacts, {}} : tree_->selected();
}

void CContactsPage::readBook() {
  shownRevision_ = services_.book.revision();
  index_.read();
  QStringList groups;
  for (const GroupFile* group : sortedGroups(services_.book)) groups.append(group->name());
  tree_->setGroups(groups);
  showPanel();
  model_.setContacts(contactsToShow());
  showCount();
  // Once the list is seen and before anybody can type.
  QTimer::singleShot(0, this, [this] { index_.prepareSearch(); });
}

ContactIndex::Contacts CContactsPage::contactsToShow() {
  if (isSearching()) return index_.find(search_->text());
  const ContactFolder folder = tree_->selected();
  return hasList(folder) ? index_.contactsIn(folder) : ContactIndex::Contacts();
}

void CContactsPage::showFresh() {
  showPanel();
  ContactIndex::Contacts contacts = contactsToShow();
  // A view looks at every row that may have changed, which would be felt with every letter of a search.
  if (contacts != model_.contacts()) model_.setContacts(std::move(contacts));
  list_->clearSelection();
  list_->setCurrentIndex({});
  list_->scrollToTop();
  showCount();
}

void CContactsPage::showPanel() {
  const ContactFolder folder = tree_->selected();
  information_->setPlainText(informationOn(folder));
  stack_->setCurrentWidget(isSearching() || hasList(folder) ? static_cast<QWidget*>(list_) : information_);
}

void CContactsPage::refresh() {
  list_->keepPlace([this] { readBook(); });
}

void CContactsPage::showEvent(QShowEvent* event) {
  const bool isFirst = !shownRevision_;
  if (shownRevision_ != services_.book.revision()) refresh();
  // New contacts can be added here at once, which the root does not allow.
  if (isFirst) tree_->select({ContactFolder::Kind::Group, QLatin1String(personalContactsName)});
  GradientPage::showEvent(event);
}

void CContactsPage::showCount() {
  const bool showsList = stack_->currentWidget() == list_;
  const auto selected = static_cast<int>(list_->selectionModel()->selectedRows().size());
  count_->setText(showsList ? countText(model_.rowCount(), selected, isSearching()) : QString());
}

std::optional<ContactRecord> CContactsPage::editedByUser(const ContactRecord& contact) {
  const auto isTaken = [this](const QString& name) { return services_.book.findContact(name) != nullptr; };
  CContactDetailsDlg dialog(contact, isTaken, services_.notifier, this);
  if (dialog.exec() != QDialog::Accepted) return {};
  return dialog.contact();
}

void CContactsPage::newContact() {
  const ContactFolder folder = tree_->selected();
  if (!flow_.acceptsNewContact(folder)) return;
  const auto contact = editedByUser({});
  if (!contact) return;
  flow_.addContact(*contact, folder.name);
  search_->clear();
  refresh();
  list_->selectNames({contact->name});
  list_->scrollTo(list_->currentIndex());
}

void CContactsPage::newGroup() {
  CGroupDetailsDlg dialog(services_, std::nullopt, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const GroupChanges changes = dialog.changes();
  saveGroup(changes);
  tree_->select({ContactFolder::Kind::Group, changes.group});
}

void CContactsPage::importContacts() {
  const ContactFolder folder = tree_->selected();
  if (!flow_.acceptsImport(folder)) return;
  if (CImportContactsDlg(services_, folder.name, this).exec() == QDialog::Accepted) refresh();
}

void CContactsPage::exportContacts() {
  const QString path = askForPath_(this, isSearching() ? u"Contacts found"_s : exportName(shownFolder()));
  if (path.isEmpty()) return;
  const ContactIndex::Contacts contacts =
      isSearching() ? model_.contacts() : index_.contactsIn(shownFolder());
  const QString problem = contactsAsCsv(contacts).save(path);
  if (!problem.isEmpty()) services_.notifier.error(problem);
}

void CContactsPage::edit() {
  const int row = list_->chosenRow();
  if (row >= 0) {
    editContact(row);
  } else if (const ContactFolder folder = shownFolder(); flow_.hasProperties(folder)) {
    editGroup(folder.name);
  }
}

void CContactsPage::editContact(int row) {
  const QString oldName = model_.contact(row).name;
  const auto contact = editedByUser(model_.contact(row));
  if (!contact) return;
  if (contact->name == oldName) {
    flow_.changeContact(oldName, *contact);
    refresh();
    return;
  }
  list_->keepPlace([&] {
    forgetContacts();
    flow_.changeContact(oldName, *contact);
    readBook();
  });
  list_->selectNames({contact->name});
}

void CContactsPage::editGroup(const QString& group) {
  CGroupDetailsDlg dialog(services_, group, this);
  if (dialog.exec() != QDialog::Accepted) return;
  saveGroup(dialog.changes());
}

void CContactsPage::saveGroup(const GroupChanges& changes) {
  list_->keepPlace([&] {
    if (!changes.newName.isEmpty()) forgetContacts();
    flow_.saveGroup(changes);
    readBook();
  });
}

void CContactsPage::remove() {
  const QStringList names = list_->selectedNames();
  if (!names.isEmpty()) {
    removeContacts(names);
  } else if (const ContactFolder folder = shownFolder(); flow_.confirmGroupDeletion(folder)) {
    removeGroup(folder);
  }
}

void CContactsPage::removeContacts(const QStringList& names) {
  const ContactFolder folder = shownFolder();
  if (!flow_.confirmDeletion(folder, static_cast<int>(names.size()))) return;
  const int scrolled = list_->verticalScrollBar()->value();
  const int place = list_->selectedRows().front();
  forgetContacts();
  flow_.deleteContacts(folder, names);
  readBook();
  list_->verticalScrollBar()->setValue(scrolled);
  // The keyboard goes on where it was; nothing is selected, so that a further Delete can't hit by accident.
  const int row = std::min(place, model_.rowCount() - 1);
  list_->selectionModel()->setCurrentIndex(model_.index(row, 0), QItemSelectionModel::NoUpdate);
}

void CContactsPage::forgetContacts() {
  model_.setContacts({});
  index_.clear();
}

void CContactsPage::removeGroup(const ContactFolder& folder) {
  flow_.deleteGroup(folder.name);
  readBook();
}

}  // namespace parlexo
