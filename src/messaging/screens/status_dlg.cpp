#include "messaging/screens/status_dlg.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "messaging/core/status_count.h"
#include "messaging/core/status_query_flow.h"
#include "ui/export_button.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/record_table.h"

namespace parlexo {
namespace {

// The longest international number has 15 digits.
RecordTable::Form statusForm() {
  return {QStringLiteral("statusList"),
          QStringLiteral("Status"),
          {{120, QStringLiteral("00/00/0000 00:00:00")},
           {200, QString()},
           {100, QStringLiteral("+000000000000000")},
           {300, QString()}}};
}

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
  list_ = new RecordTable(model_, statusForm(), services_.settings, this);
  list_->header()->setSectionsMovable(true);
  list_->header()->setFirstSectionMovable(true);
  count_ = wrappedLabel({}, this);
  count_->setObjectName(QStringLiteral("statusCount"));
  exportButton_ = new ExportButton(*list_, services_.notifier, this);
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
  auto* top = new QHBoxLayout;
  top->addWidget(labelFor(type_, QStringLiteral("Message &Type:")));
  top->addWidget(type_);
  top->addStretch(1);
  auto* bottom = new QHBoxLayout;
  bottom->setSpacing(10);
  bottom->addWidget(count_, 1);
  bottom->addWidget(exportButton_);
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
  showCount({});
  exportButton_->setSuggestedName(type_->currentText() + QStringLiteral(" status"));
  list_->setCurrentIndex(list_->model()->index(0, 0));
}

void CStatusDlg::showCount(const QString& remark) {
  QString count = statusCountText(model_.rowCount(), services_.statusLog.entries().size());
  if (!remark.isEmpty()) count += u' ' + remark;
  count_->setText(count);
}

void CStatusDlg::getStatus() {
  if (isAsking_) return;
  const QScopedValueRollback guard(isAsking_, true);
  showCount({});
  QStringList receipts;
  for (const int row : list_->selectedRecords()) receipts.append(model_.entryAt(row).receipt);
  const auto outcome = StatusQueryFlow(services_).query(receipts, [this](const StatusEntry& entry) {
    model_.setStatus(entry.receipt, entry.status);
    shownRevision_ = services_.statusLog.revision();
  });
  showCount(statusQueryText(outcome));
}

}  // namespace parlexo
