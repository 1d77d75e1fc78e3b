// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/group_details_dlg.h"

#include <algorithm>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QVBoxLayout>

#include "addressbook/core/contact_selection.h"
#include "addressbook/screens/contact_details_dlg.h"
#include "addressbook/screens/select_contacts_dlg.h"
#include "base/notifier.h"
#include "contacts/address_book.h"
#include "ui/hyperlink_label.h"
#include "ui/list_style.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/row_list_view.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// Quotes the name. A long one is shortened to the part around the character at index `place`.
QString quoted(const QString& name, qsizetype place) {
  constexpr qsizetype longest = 40;
  const QString dots = u"..."_s;
  const qsizetype start =
      std::clamp<qsizetype>(place - longest / 2, 0, std::max<qsizetype>(0, name.size() - longest));
  QString shown = name.mid(start, longest);
  if (start > 0) shown.prepend(dots);
  if (start + longest < name.size()) shown.append(dots);
  return u'"' + shown + u'"';
}

}  // namespace

CGroupDetailsDlg::CGroupDetailsDlg(const AddressBookServices& services, const std::optional<QString>& group,
                                   QWidget* parent)
    : GradientDialog(parent), services_(services), draft_(services.book, group) {
  setObjectName(u"groupDetailsDialog"_s);
  setWindowTitle(tr("Parlexo(TM) : Group Details"));
  createControls();
  createLayout();
  showMembers({});
  enableButtons();
  if (draft_.isNew()) {
    name_->setFocus(Qt::OtherFocusReason);
  } else {
    list_->setFocus(Qt::OtherFocusReason);
  }
}

void CGroupDetailsDlg::createControls() {
  if (draft_.isNew()) {
    name_ = new QLineEdit(this);
    name_->setObjectName(u"groupNameEdit"_s);
    name_->setValidator(new ContactTextValidator(name_));
    connect(name_, &QLineEdit::textChanged, this, &CGroupDetailsDlg::checkName);
  } else {
    name_ = readOnlyField(u"groupNameEdit"_s, this);
    name_->setText(shownName(draft_.name()));
  }
  list_ = new RowListView(
      model_, [this](int row) { return model_.contact(row).name; }, tr("Group Members:"), this);
  list_->setObjectName(u"memberList"_s);
  // The longest international number has 15 digits.
  const int numberWidth = fittingColumnWidth(*list_, 100, u"+000000000000000"_s);
  list_->setColumnWidths({120, numberWidth, 40, 40, numberWidth});
  list_->setMinimumSize(list_->fittingWidth(), dialogUnits(*this, 0, 90).height());
  connect(list_, &QAbstractItemView::doubleClicked, this, &CGroupDetailsDlg::showProperties);
  connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &CGroupDetailsDlg::enableButtons);
  auto* removal = new QShortcut(QKeySequence(QKeySequence::Delete), list_);
  removal->setContext(Qt::WidgetShortcut);
  connect(removal, &QShortcut::activated, this, &CGroupDetailsDlg::remove);
}

void CGroupDetailsDlg::createLayout() {
  auto* list = new QVBoxLayout;
  list->setSpacing(look::captionSpacing);
  list->addWidget(labelFor(list_, tr("Group &Members:")));
  list->addWidget(list_, 1);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(look::columnSpacing);
  middle->addLayout(list, 1);
  middle->addLayout(buttonColumn());

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::dialogMargins);
  layout->setSpacing(look::rowSpacing);
  layout->addLayout(nameRows());
  layout->addLayout(middle, 1);
  layout->addLayout(okAndCancelRow(*this));
  ok_ = findChild<PictureButton*>(u"okButton"_s);
  setTabOrder(name_, useSuggestion_);
  setTabOrder(useSuggestion_, list_);
  resize(sizeHint().expandedTo(dialogUnits(*this, 360, 210)));
}

QLayout* CGroupDetailsDlg::nameRows() {
  nameWarning_ = wrappedLabel({}, this);
  nameWarning_->setObjectName(u"groupNameWarning"_s);
  nameWarning_->setTextFormat(Qt::PlainText);
  QPalette palette = nameWarning_->palette();
  palette.setColor(QPalette::WindowText, look::problemText);
  nameWarning_->setPalette(palette);
  useSuggestion_ = new HyperlinkLabel({}, {}, this);
  useSuggestion_->setObjectName(u"useSuggestedNameLink"_s);
  connect(useSuggestion_, &HyperlinkLabel::clicked, this, [this] {
    name_->setFocus(Qt::OtherFocusReason);
    if (const auto unstable = draft_.unstableName(name_->text())) name_->setText(unstable->suggestion);
  });
  auto* rows = new QGridLayout;
  rows->setVerticalSpacing(look::lineSpacing);
  rows->addWidget(labelFor(name_, tr("&Group Name:")), 0, 0);
  rows->addWidget(name_, 0, 1);
  rows->addWidget(nameWarning_, 1, 1);
  rows->addWidget(useSuggestion_, 2, 1);
  nameWarning_->hide();
  useSuggestion_->hide();
  return rows;
}

void CGroupDetailsDlg::checkName() {
  const auto unstable = draft_.unstableName(name_->text());
  ok_->setEnabled(!unstable);
  nameWarning_->setVisible(unstable.has_value());
  useSuggestion_->setVisible(unstable.has_value());
  name_->setAccessibleDescription({});
  if (!unstable) return;
  const QString warning =
      tr("After a restart this name would read %1.").arg(quoted(unstable->afterRestart, unstable->place));
  nameWarning_->setText(warning);
  name_->setAccessibleDescription(warning);
  const QString use = tr("Use %1").arg(quoted(unstable->suggestion, unstable->place));
  useSuggestion_->setText(QString(use).replace(u'&', u"&&"_s));
  useSuggestion_->updateGeometry();
}

QLayout* CGroupDetailsDlg::buttonColumn() {
  auto* column = new QVBoxLayout;
  column->addSpacing(fontMetrics().height() + look::captionSpacing);
  const auto add = [this, column](const QString& name, const QString& text, auto action) {
    PictureButton* button = addButton(*column, name, text);
    connect(button, &PictureButton::clicked, this, action);
    return button;
  };
  add(u"selectButton"_s, tr("&Select..."), &CGroupDetailsDlg::select);
  removeButton_ = add(u"removeButton"_s, tr("&Remove"), &CGroupDetailsDlg::remove);
  add(u"newContactButton"_s, tr("&New Contact..."), [this] { editContact(nullptr); });
  propertiesButton_ = add(u"propertiesButton"_s, tr("&Properties..."), &CGroupDetailsDlg::showProperties);
  column->addStretch(1);
  return column;
}

void CGroupDetailsDlg::select() {
  CSelectContactsDlg dialog(services_.book, SelectionMode::All, draft_.selection(), services_.notifier, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const QStringList selected = list_->selectedNames();
  draft_.setSelection(dialog.selection());
  showMembers(selected);
}

void CGroupDetailsDlg::remove() {
  const QStringList names = list_->selectedNames();
  if (names.isEmpty()) return;
  QString question = tr("Are you sure you want to remove this contact from the group?");
  if (names.size() > 1) question += u"\n\n"_s + tr("(%1 contacts are selected.)").arg(names.size());
  if (!services_.notifier.confirm(question)) return;
  model_.setContacts({});
  draft_.remove(names);
  showMembers({});
}

void CGroupDetailsDlg::showProperties() {
  const int row = list_->chosenRow();
  if (row >= 0) editContact(&model_.contact(row));
}

void CGroupDetailsDlg::editContact(const ContactRecord* member) {
  const auto isTaken = [this](const QString& name) { return draft_.isContactNameTaken(name); };
  CContactDetailsDlg dialog(member ? *member : ContactRecord(), isTaken, services_.notifier, this);
  if (dialog.exec() != QDialog::Accepted) return;
  if (member && member->name.isEmpty())
    draft_.putNameless(dialog.contact());
  else
    draft_.put(dialog.contact());
  showMembers({dialog.contact().name});
}

void CGroupDetailsDlg::showMembers(const QStringList& selectedNames) {
  model_.setContacts(draft_.members());
  list_->selectNames(selectedNames);
  if (list_->currentIndex().isValid()) list_->scrollTo(list_->currentIndex());
  enableButtons();
}

void CGroupDetailsDlg::enableButtons() {
  const bool isAnySelected = list_->selectionModel()->hasSelection();
  removeButton_->setEnabled(isAnySelected);
  propertiesButton_->setEnabled(isAnySelected);
}

void CGroupDetailsDlg::accept() {
  if (!ok_->isEnabled()) return;
  const QString problem = draft_.setName(name_->text());
  if (problem.isEmpty()) {
    GradientDialog::accept();
    return;
  }
  services_.notifier.error(problem);
  name_->setFocus(Qt::OtherFocusReason);
  name_->selectAll();
}

}  // namespace parlexo
