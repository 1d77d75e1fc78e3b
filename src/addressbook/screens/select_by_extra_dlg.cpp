#include "addressbook/screens/select_by_extra_dlg.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QListView>
#include <QStringListModel>

#include "base/notifier.h"
#include "ui/list_style.h"
#include "ui/look.h"
#include "ui/picture_button.h"

namespace parlexo {

namespace {

constexpr int boxesPerRow = 3;
constexpr int boxWidthUnits = 110;
constexpr int boxHeightUnits = 75;
constexpr int captionGap = 4;

QLabel* explanation(QWidget* parent) {
  auto* label = new QLabel(
      QStringLiteral("Use this to select your contacts based on the Extra attributes assigned. Simply just "
                     "select the attributes you want in the listbox. Multiple attributes is permitted."),
      parent);
  label->setObjectName(QStringLiteral("explanation"));
  label->setWordWrap(true);
  return label;
}

/// A list box in which every click and every press of the space bar adds a value or takes it back.
QListView* valueBox(const QStringList& values, const QString& label, QWidget* parent) {
  auto* box = new QListView(parent);
  styleList(*box);
  box->setModel(new QStringListModel(values, box));
  box->setAccessibleName(label);
  box->setEditTriggers(QAbstractItemView::NoEditTriggers);
  box->setSelectionMode(QAbstractItemView::MultiSelection);
  box->setUniformItemSizes(true);
  box->setMinimumSize(dialogUnits(*parent, boxWidthUnits, boxHeightUnits));
  return box;
}

}  // namespace

CSelectByExtraDlg::CSelectByExtraDlg(const AddressBook& book, Notifier& notifier, QWidget* parent)
    : GradientDialog(parent), book_(book), notifier_(notifier) {
  setWindowTitle(QStringLiteral("Parlexo(TM) : Contact Details"));
  setObjectName(QStringLiteral("selectByExtraDialog"));
  auto* grid = new QGridLayout(this);
  grid->addWidget(explanation(this), 0, 0, 1, boxesPerRow);
  const ExtraValues values = distinctExtraValues(book);
  for (int field = 0; field < ContactRecord::extraCount; ++field) addField(*grid, field, values[field]);
  addButtons(*grid, grid->rowCount());
  boxes_.front()->setFocus(Qt::OtherFocusReason);
}

void CSelectByExtraDlg::addField(QGridLayout& grid, int field, const QStringList& values) {
  const QString label = QStringLiteral("Extra %1:").arg(field + 1);
  QListView* box = valueBox(values, label, this);
  box->setObjectName(QStringLiteral("extra%1List").arg(field + 1));
  const int row = 1 + 2 * (field / boxesPerRow);
  const int column = field % boxesPerRow;
  auto* caption = new QLabel(label, this);
  caption->setContentsMargins(0, captionGap, 0, 0);
  grid.addWidget(caption, row, column);
  grid.addWidget(box, row + 1, column);
  boxes_[field] = box;
}

void CSelectByExtraDlg::addButtons(QGridLayout& grid, int row) {
  auto* select = new PictureButton(QStringLiteral("&Select"), this);
  select->setObjectName(QStringLiteral("selectButton"));
  select->setDefault(true);
  connect(select, &PictureButton::clicked, this, &QDialog::accept);
  auto* cancel = new PictureButton(QStringLiteral("&Cancel"), this);
  cancel->setObjectName(QStringLiteral("cancelButton"));
  connect(cancel, &PictureButton::clicked, this, &QDialog::reject);

  auto* buttons = new QHBoxLayout;
  buttons->setContentsMargins(0, 6, 0, 0);
  buttons->addStretch(1);
  buttons->addWidget(select);
  buttons->addWidget(cancel);
  grid.addLayout(buttons, row, 0, 1, boxesPerRow);
}

ExtraChoice CSelectByExtraDlg::choice() const {
  ExtraChoice chosen;
  for (std::size_t field = 0; field < boxes_.size(); ++field) {
    for (const QModelIndex& index : boxes_[field]->selectionModel()->selectedIndexes()) {
      chosen[field].insert(index.data().toString());
    }
  }
  return chosen;
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
