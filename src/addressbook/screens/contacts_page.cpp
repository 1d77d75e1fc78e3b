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

QString informationText(const ContactFolder& folder) {
  const QString topPadding(8, u'\n');
  if (folder.kind == ContactFolder::Kind::Root)
    return topPadding + CContactsPage::tr("Your Address Book for all your Contacts");
  return topPadding + CContactsPage::tr(
                          "All your contacts sorted in Alphabetic order. You cannot create contacts\n"
                          "under these folders as they are READONLY. Deleting or modifying is permitted");
}

bool hasList(const ContactFolder& folder) {
  return folder.kind != ContactFolder::Kind::Root && folder.kind != ContactFolder::Kind::AllContacts;
}

// A repeated key press still reaches the page until the dialog that it opened has the focus.
bool isBehindDialog(const QWidget& widget) {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal && modal != widget.window();
}

void addShortcut(QWidget* widget, const QKeySequence& key, const std::function<void()>& action) {
  auto* shortcut = new QShortcut(key, widget);
  shortcut->setContext(Qt::WidgetShortcut);
  shortcut->setAutoRepeat(false);
  QObject::connect(shortcut, &QShortcut::activated, widget, [widget, action] {
    if (!isBehindDialog(*widget)) action();
  });
}

QString countText(int count, int selected, bool isSearching) {
  const QString one = isSearching ? CContactsPage::tr("1 contact found in the whole address book")
                                  : CContactsPage::tr("1 contact");
  const QString several = isSearching ? CContactsPage::tr("%1 contacts found in the whole address book")
                                      : CContactsPage::tr("%1 contacts");
  const QString text = count == 1 ? one : several.arg(count);
  return selected < 2 ? text : CContactsPage::tr("%1, %2 selected").arg(text).arg(selected);
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
    resetList();
  });
  tree_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(tree_, &QWidget::customContextMenuRequested, this, [this](const QPoint& where) {
    if (QTreeWidgetItem* item = tree_->itemAt(where)) tree_->setCurrentItem(item);
    // The menu applies to the folder, not to selected contacts.
    list_->clearSelection();
    openMenu(*tree_->viewport(), where);
  });
  addShortcut(tree_, QKeySequence::Delete, [this] {
    list_->clearSelection();
    remove();
  });
}

void CContactsPage::createList() {
  list_ = new RowListView(
      model_, [this](int row) { return model_.contact(row).name; }, tr("Contacts"), this);
  list_->setObjectName(u"contactList"_s);
  // The longest international number has 15 digits.
  const int numberWidth = fittingColumnWidth(*list_, 120, u"+000000000000000"_s);
  list_->setColumnWidths({150, numberWidth, 40, 40, numberWidth});
  connect(list_, &QAbstractItemView::doubleClicked, this, &CContactsPage::edit);
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
    addShortcut(list_, QKeySequence(key), [this] { edit(); });
  addShortcut(list_, QKeySequence::Delete, [this] { remove(); });
  connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &CContactsPage::showCount);
  list_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& where) { openMenu(*list_->viewport(), where); });

  information_ = new QPlainTextEdit(this);
  information_->setObjectName(u"informationPanel"_s);
  information_->setAccessibleName(tr("Information"));
  information_->setReadOnly(true);
  information_->setTabChangesFocus(true);
  QPalette palette = information_->palette();
  palette.setColor(QPalette::Base, look::listBackground);
  information_->setPalette(palette);
}

void CContactsPage::createSearch() {
  search_ = new SearchField(tr("Search all contacts: name, number or Extra"), *list_, this);
  search_->setObjectName(u"contactSearch"_s);
  connect(search_, &QLineEdit::textChanged, this, &CContactsPage::resetList);
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
  add(tr("New Contact..."), &CContactsPage::newContact);
  add(tr("New Group..."), &CContactsPage::newGroup);
  menu_->addSeparator();
  add(tr("Edit..."), &CContactsPage::edit);
  add(tr("Delete"), &CContactsPage::remove);
}

void CContactsPage::openMenu(QWidget& at, const QPoint& where) {
  menu_->popup(at.mapToGlobal(where));
}

void CContactsPage::createLayout() {
  auto* contacts = new QWidget(this);
  contacts->setLayout(contactsColumn());
  auto* splitter = new QSplitter(this);
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(tree_);
  splitter->addWidget(contacts);
  splitter->setStretchFactor(1, 1);
  tree_->setMinimumWidth(dialogUnits(*this, 80, 0).width());
  splitter->setSizes({dialogUnits(*this, 120, 0).width(), list_->fittingWidth()});
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::pageMargins);
  layout->setSpacing(look::rowSpacing);
  layout->addWidget(splitter, 1);
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
  column->setSpacing(look::controlSpacing);
  column->addLayout(searchRow(tr("&Find:"), *search_));
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
  add(u"newContactButton"_s, tr("&New Contact..."), &CContactsPage::newContact);
  add(u"newGroupButton"_s, tr("New &Group..."), &CContactsPage::newGroup);
  add(u"importButton"_s, tr("&Import..."), &CContactsPage::importContacts);
  add(u"exportButton"_s, tr("E&xport..."), &CContactsPage::exportContacts);
  row->addStretch(1);
  add(u"editButton"_s, tr("&Edit..."), &CContactsPage::edit);
  add(u"deleteButton"_s, tr("&Delete"), &CContactsPage::remove);
  auto* details = add(u"detailsButton"_s, tr("D&etails"), &CContactsPage::edit);
  // "&Edit..." has the same mnemonic and action. An ambiguous mnemonic would only move the focus.
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
  // After the list has been painted, but before the user can type.
  QTimer::singleShot(0, this, [this] { index_.prepareSearch(); });
}

ContactIndex::Contacts CContactsPage::contactsToShow() {
  if (isSearching()) return index_.find(search_->text());
  const ContactFolder folder = tree_->selected();
  return hasList(folder) ? index_.contactsIn(folder) : ContactIndex::Contacts();
}

void CContactsPage::resetList() {
  showPanel();
  ContactIndex::Contacts contacts = contactsToShow();
  // Setting equal contacts makes the view check every row, which would slow down typing in the search.
  if (contacts != model_.contacts()) model_.setContacts(std::move(contacts));
  list_->clearSelection();
  list_->setCurrentIndex({});
  list_->scrollToTop();
  showCount();
}

void CContactsPage::showPanel() {
  const ContactFolder folder = tree_->selected();
  information_->setPlainText(informationText(folder));
  stack_->setCurrentWidget(isSearching() || hasList(folder) ? static_cast<QWidget*>(list_) : information_);
}

void CContactsPage::refresh() {
  list_->preserveSelection([this] { readBook(); });
}

void CContactsPage::showEvent(QShowEvent* event) {
  const bool isFirst = !shownRevision_;
  if (shownRevision_ != services_.book.revision()) refresh();
  // Unlike the root, this group accepts new contacts.
  if (isFirst) tree_->select({ContactFolder::Kind::Group, QLatin1String(personalContactsName)});
  GradientPage::showEvent(event);
}

void CContactsPage::showCount() {
  const bool showsList = stack_->currentWidget() == list_;
  const auto selected = static_cast<int>(list_->selectionModel()->selectedRows().size());
  count_->setText(showsList ? countText(model_.rowCount(), selected, isSearching()) : QString());
}

std::optional<ContactRecord> CContactsPage::runDetailsDialog(const ContactRecord& contact) {
  const auto isTaken = [this](const QString& name) { return services_.book.findContact(name) != nullptr; };
  CContactDetailsDlg dialog(contact, isTaken, services_.notifier, this);
  if (dialog.exec() != QDialog::Accepted) return {};
  return dialog.contact();
}

void CContactsPage::newContact() {
  const ContactFolder folder = tree_->selected();
  if (!flow_.acceptsNewContact(folder)) return;
  const auto contact = runDetailsDialog({});
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
  const QString path = askForPath_(this, isSearching() ? tr("Contacts found") : exportName(shownFolder()));
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
  const auto contact = runDetailsDialog(model_.contact(row));
  if (!contact) return;
  if (contact->name == oldName) {
    flow_.changeContact(oldName, *contact);
    refresh();
    return;
  }
  list_->preserveSelection([&] {
    clearContacts();
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
  list_->preserveSelection([&] {
    if (!changes.newName.isEmpty()) clearContacts();
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
  clearContacts();
  flow_.deleteContacts(folder, names);
  readBook();
  list_->verticalScrollBar()->setValue(scrolled);
  // The next row becomes current but is not selected, so that pressing Delete again does not delete it.
  const int row = std::min(place, model_.rowCount() - 1);
  list_->selectionModel()->setCurrentIndex(model_.index(row, 0), QItemSelectionModel::NoUpdate);
}

void CContactsPage::clearContacts() {
  model_.setContacts({});
  index_.clear();
}

void CContactsPage::removeGroup(const ContactFolder& folder) {
  flow_.deleteGroup(folder.name);
  readBook();
}

}  // namespace parlexo
