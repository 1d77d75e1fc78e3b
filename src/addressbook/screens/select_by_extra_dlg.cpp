// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/select_by_extra_dlg.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "addressbook/screens/extra_value_box.h"
#include "base/notifier.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/search_field.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int boxesPerRow = 3;
constexpr int boxWidthUnits = 110;
constexpr int boxHeightUnits = 75;

QLabel* explanation(QWidget* parent) {
  auto* label =
      new QLabel(CSelectByExtraDlg::tr(
                     "Use this to select your contacts based on the Extra attributes assigned. Simply just "
                     "select the attributes you want in the listbox. Multiple attributes is permitted."),
                 parent);
  label->setObjectName(u"explanation"_s);
  label->setWordWrap(true);
  return label;
}

QString valueCountText(qsizetype values, std::size_t contacts) {
  QString chosen = values == 1 ? CSelectByExtraDlg::tr("1 value selected")
                               : CSelectByExtraDlg::tr("%1 values selected").arg(values);
  if (values == 0) return chosen;
  if (contacts == 1) return CSelectByExtraDlg::tr("%1, 1 contact matches").arg(chosen);
  return CSelectByExtraDlg::tr("%1, %2 contacts match").arg(chosen).arg(contacts);
}

}  // namespace

CSelectByExtraDlg::CSelectByExtraDlg(const AddressBook& book, Notifier& notifier, QWidget* parent)
    : GradientDialog(parent), book_(book), notifier_(notifier) {
  setWindowTitle(tr("Parlexo(TM) : Contact Details"));
  setObjectName(u"selectByExtraDialog"_s);
  auto* grid = new QGridLayout(this);
  grid->addWidget(explanation(this), 0, 0, 1, boxesPerRow);
  const ExtraValues values = distinctExtraValues(book);
  for (int field = 0; field < ContactRecord::extraCount; ++field) addField(*grid, field, values[field]);
  addBottomRow(*grid, grid->rowCount());
  showCount();
  boxes_.front()->setFocus(Qt::OtherFocusReason);
}

void CSelectByExtraDlg::addField(QGridLayout& grid, int field, const QStringList& values) {
  const int number = field + 1;
  auto* box = new ExtraValueBox(values, tr("Extra %1:").arg(number), this);
  box->setObjectName(u"extra%1List"_s.arg(number));
  box->setMinimumSize(dialogUnits(*this, boxWidthUnits, boxHeightUnits));
  connect(box, &ExtraValueBox::chosenChanged, this, &CSelectByExtraDlg::showCount);
  auto* search = new SearchField(tr("Search Extra %1").arg(number), *box, this);
  search->setObjectName(u"extra%1Search"_s.arg(number));
  connect(search, &QLineEdit::textChanged, box, &ExtraValueBox::search);
  const int row = 1 + 2 * (field / boxesPerRow);
  const int column = field % boxesPerRow;
  grid.addLayout(searchRow(tr("Extra &%1:").arg(number), *search), row, column);
  grid.addWidget(box, row + 1, column);
  boxes_[field] = box;
}

void CSelectByExtraDlg::addBottomRow(QGridLayout& grid, int row) {
  count_ = new QLabel(this);
  count_->setObjectName(u"countLine"_s);
  auto* buttons = new QHBoxLayout;
  buttons->setContentsMargins(0, look::controlSpacing, 0, 0);
  buttons->addWidget(count_, 1);
  auto* select = addButton(*buttons, u"selectButton"_s, tr("&Select"));
  select->setDefault(true);
  connect(select, &PictureButton::clicked, this, &QDialog::accept);
  auto* cancel = addButton(*buttons, u"cancelButton"_s, tr("&Cancel"));
  connect(cancel, &PictureButton::clicked, this, &QDialog::reject);
  grid.addLayout(buttons, row, 0, 1, boxesPerRow);
}

ExtraChoice CSelectByExtraDlg::choice() const {
  ExtraChoice chosen;
  for (std::size_t field = 0; field < boxes_.size(); ++field) chosen[field] = boxes_[field]->chosen();
  return chosen;
}

void CSelectByExtraDlg::showCount() {
  const ExtraChoice chosen = choice();
  qsizetype values = 0;
  for (const QSet<QString>& fieldValues : chosen) values += fieldValues.size();
  count_->setText(valueCountText(values, values == 0 ? 0 : contactsMatching(book_, chosen).size()));
}

void CSelectByExtraDlg::accept() {
  const ExtraChoice chosen = choice();
  if (!hasChoice(chosen)) {
    notifier_.warning(nothingChosenText());
    return;
  }
  matching_ = contactsMatching(book_, chosen);
  GradientDialog::accept();
}

}  // namespace parlexo
