// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/select_contacts_dlg.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include "addressbook/screens/check_list_model.h"
#include "addressbook/screens/select_by_extra_dlg.h"
#include "ui/list_style.h"
#include "ui/look.h"
#include "ui/picture_button.h"
#include "ui/search_field.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int checkWidth = 30;
constexpr int nameWidth = 200;
constexpr int numberWidth = 100;
constexpr int listHeightUnits = 190;

QString contactCountText(int ticked, int all, int tickedAndShown) {
  QString count = CSelectContactsDlg::tr("%1 of %2 contacts selected").arg(ticked).arg(all);
  if (ticked == tickedAndShown) return count;
  return CSelectContactsDlg::tr("%1, %2 hidden by the search").arg(count).arg(ticked - tickedAndShown);
}

}  // namespace

CSelectContactsDlg::CSelectContactsDlg(const AddressBook& book, SelectionMode mode,
                                       const ContactSelection& initial, Notifier& notifier, QWidget* parent)
    : GradientDialog(parent),
      book_(book),
      notifier_(notifier),
      selection_(initial),
      lists_(book, mode, initial),
      groups_(lists_),
      contacts_(lists_, mode) {
  setWindowTitle(tr("Parlexo(TM) : Contacts"));
  setObjectName(u"selectContactsDialog"_s);
  createLists();
  createSearches();
  createButtons();
  createLayout();
  showCount();
  contactView_->setFocus(Qt::OtherFocusReason);
  // After the dialog has been painted, but before the user can type.
  QTimer::singleShot(0, this, [this] { contacts_.prepareSearch(); });
}

void CSelectContactsDlg::createLists() {
  groupView_ = new CheckListView(groups_, tr("Groups:"), this);
  groupView_->setObjectName(u"groupList"_s);
  groupView_->setColumnWidths({checkWidth, nameWidth});
  contactView_ = new CheckListView(contacts_, tr("Contacts:"), this);
  contactView_->setObjectName(u"contactList"_s);
  // The longest international number has 15 digits.
  const int fittingNumberWidth = fittingColumnWidth(*contactView_, numberWidth, u"+000000000000000"_s);
  contactView_->setColumnWidths({checkWidth, nameWidth, fittingNumberWidth});
  for (CheckListView* view : {groupView_, contactView_}) {
    view->setMinimumWidth(view->fittingWidth());
    view->setMinimumHeight(dialogUnits(*this, 0, listHeightUnits / 2).height());
  }
  connect(&groups_, &GroupListModel::contactTicksChanged, &contacts_, &ContactListModel::refreshTicks);
}

void CSelectContactsDlg::createSearches() {
  groupSearch_ = new SearchField(tr("Search groups"), *groupView_, this);
  groupSearch_->setObjectName(u"groupSearch"_s);
  connect(groupSearch_, &QLineEdit::textChanged, &groups_, &CheckListModel::search);
  contactSearch_ = new SearchField(tr("Search name, number or Extra"), *contactView_, this);
  contactSearch_->setObjectName(u"contactSearch"_s);
  connect(contactSearch_, &QLineEdit::textChanged, &contacts_, &CheckListModel::search);
  count_ = new QLabel(this);
  count_->setObjectName(u"countLine"_s);
  connect(&contacts_, &CheckListModel::ticksChanged, this, &CSelectContactsDlg::showCount);
  connect(&contacts_, &CheckListModel::modelReset, this, &CSelectContactsDlg::showCount);
}

void CSelectContactsDlg::createButtons() {
  const auto button = [this](const QString& text, const QString& name, auto action) {
    auto* created = new PictureButton(text, this);
    created->setObjectName(name);
    connect(created, &PictureButton::clicked, this, action);
    return created;
  };
  extraButton_ =
      button(tr("Select by E&xtra..."), u"selectByExtraButton"_s, &CSelectContactsDlg::selectByExtra);
  selectButton_ = button(tr("&Select"), u"selectButton"_s, &QDialog::accept);
  clearButton_ = button(tr("&Clear All Selection"), u"clearAllButton"_s, &CSelectContactsDlg::clearTicks);
  cancelButton_ = button(tr("&Cancel"), u"cancelButton"_s, &QDialog::reject);
  selectButton_->setDefault(true);
}

void CSelectContactsDlg::createLayout() {
  auto* lists = new QGridLayout;
  lists->addLayout(searchRow(tr("&Groups:"), *groupSearch_), 0, 0);
  lists->addLayout(searchRow(tr("C&ontacts:"), *contactSearch_), 0, 1);
  lists->addWidget(groupView_, 1, 0);
  lists->addWidget(contactView_, 1, 1);
  lists->addWidget(count_, 2, 1);
  lists->setColumnStretch(0, groupView_->fittingWidth());
  lists->setColumnStretch(1, contactView_->fittingWidth());
  lists->setHorizontalSpacing(look::columnSpacing);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(extraButton_);
  buttons->addStretch(1);
  for (PictureButton* button : {selectButton_, clearButton_, cancelButton_}) buttons->addWidget(button);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(lists, 1);
  layout->addSpacing(look::controlSpacing);
  layout->addLayout(buttons);
  resize(sizeHint().width(), sizeHint().height() + dialogUnits(*this, 0, listHeightUnits / 2).height());
}

void CSelectContactsDlg::accept() {
  selection_ = lists_.tickedContacts();
  GradientDialog::accept();
}

void CSelectContactsDlg::clearTicks() {
  lists_.clear();
  groups_.refreshTicks({0, lists_.groupCount() - 1});
  contacts_.refreshTicks({0, lists_.contactCount() - 1});
}

void CSelectContactsDlg::showCount() {
  count_->setText(contactCountText(lists_.tickedCount(), lists_.contactCount(), contacts_.tickedRowCount()));
}

void CSelectContactsDlg::selectByExtra() {
  CSelectByExtraDlg dialog(book_, notifier_, this);
  if (dialog.exec() == QDialog::Accepted) contacts_.refreshTicks(lists_.tickContacts(dialog.contacts()));
}

}  // namespace parlexo
