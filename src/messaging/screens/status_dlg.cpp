#include "messaging/screens/status_dlg.h"

#include <algorithm>
#include <array>

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMenu>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTreeView>
#include <QVBoxLayout>

#include "messaging/core/status_query_flow.h"
#include "ui/list_style.h"
#include "ui/picture_button.h"

namespace parlexo {
namespace {

struct ColumnWidth {
  int usual;
  const char* widest;  // what must never be cut off; the longest international number has 15 digits
};

constexpr std::array<ColumnWidth, StatusListModel::columns> columnWidths{
    {{120, "00/00/0000 00:00:00"}, {200, ""}, {100, "+000000000000000"}, {300, ""}}};

}  // namespace

CStatusDlg::CStatusDlg(const MessagingServices& services, QWidget* parent)
    : GradientPage(parent), services_(services) {
  setObjectName(QStringLiteral("statusPage"));
  createTypeBox();
  createList();
  createMenu();
  getStatusButton_ = new PictureButton(QStringLiteral("Get &Status"), this);
  getStatusButton_->setObjectName(QStringLiteral("getStatusButton"));
  connect(getStatusButton_, &PictureButton::clicked, this, &CStatusDlg::getStatus);
  createLayout();
  selectType(QStringLiteral("SMS"));
}

void CStatusDlg::selectType(const QString& typeWord) {
  const int item = type_->findText(typeWord);
  if (item >= 0) {
    const QSignalBlocker filledBelow(type_);
    type_->setCurrentIndex(item);
  }
  fill();
}

void CStatusDlg::showEvent(QShowEvent* event) {
  if (shownRevision_ != services_.statusLog.revision()) fill();
  GradientPage::showEvent(event);
}

void CStatusDlg::createTypeBox() {
  type_ = new QComboBox(this);
  type_->setObjectName(QStringLiteral("messageType"));
  type_->addItems({QStringLiteral("Fax"), QStringLiteral("MMS"), QStringLiteral("SMS"),
                   QStringLiteral("Voice"), QStringLiteral("WAP")});
  connect(type_, &QComboBox::currentIndexChanged, this, &CStatusDlg::fill);
}

void CStatusDlg::createList() {
  list_ = new QTreeView(this);
  list_->setObjectName(QStringLiteral("statusList"));
  list_->setAccessibleName(QStringLiteral("Status"));
  list_->setModel(&model_);
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  styleList(*list_);
  QHeaderView& header = *list_->header();
  header.setSectionsMovable(true);
  header.setFirstSectionMovable(true);
  int column = 0;
  for (const auto& [usual, widest] : columnWidths)
    header.resizeSection(column++, fittingColumnWidth(*list_, usual, QString::fromLatin1(widest)));
  auto* copy = new QShortcut(QKeySequence(QKeySequence::Copy), list_);
  copy->setContext(Qt::WidgetShortcut);
  connect(copy, &QShortcut::activated, this, &CStatusDlg::copyRows);
}

void CStatusDlg::createMenu() {
  menu_ = new QMenu(this);
  menu_->setObjectName(QStringLiteral("statusMenu"));
  connect(menu_->addAction(QStringLiteral("Status")), &QAction::triggered, this, &CStatusDlg::getStatus);
  list_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& where) { menu_->popup(list_->viewport()->mapToGlobal(where)); });
}

void CStatusDlg::createLayout() {
  auto* label = new QLabel(QStringLiteral("Message &Type:"), this);
  label->setBuddy(type_);
  auto* top = new QHBoxLayout;
  top->addWidget(label);
  top->addWidget(type_);
  top->addStretch(1);
  auto* bottom = new QHBoxLayout;
  bottom->addStretch(1);
  bottom->addWidget(getStatusButton_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 10, 14, 12);
  layout->setSpacing(10);
  layout->addLayout(top);
  layout->addWidget(list_, 1);
  layout->addLayout(bottom);
}

void CStatusDlg::fill() {
  model_.fill(services_.statusLog, type_->currentText());
  shownRevision_ = services_.statusLog.revision();
  if (model_.rowCount() > 0) list_->setCurrentIndex(model_.index(0, 0));
}

void CStatusDlg::getStatus() {
  if (isAsking_) return;
  const QScopedValueRollback guard(isAsking_, true);
  QStringList receipts;
  for (const int row : selectedRows()) receipts.append(model_.entryAt(row).receipt);
  StatusQueryFlow(services_).query(receipts, [this](const QString& receipt, const QString& status) {
    model_.setStatus(receipt, status);
    shownRevision_ = services_.statusLog.revision();
  });
}

void CStatusDlg::copyRows() const {
  QStringList lines;
  for (const int row : selectedRows()) lines.append(rowText(row));
  if (!lines.isEmpty()) QGuiApplication::clipboard()->setText(lines.join(QChar(u'\n')));
}

std::vector<int> CStatusDlg::selectedRows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : list_->selectionModel()->selectedRows()) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  return rows;
}

QString CStatusDlg::rowText(int row) const {
  QStringList cells;
  for (int place = 0; place < StatusListModel::columns; ++place)
    cells.append(model_.index(row, list_->header()->logicalIndex(place)).data().toString());
  return cells.join(QChar(u'\t'));
}

}  // namespace parlexo
