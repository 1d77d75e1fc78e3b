// SPDX-License-Identifier: GPL-3.0-or-later
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

using namespace Qt::StringLiterals;

namespace {

// The longest international number has 15 digits.
RecordTable::Form statusForm() {
  return {
      u"statusList"_s,
      u"Status"_s,
      {{120, u"00/00/0000 00:00:00"_s}, {200, QString()}, {100, u"+000000000000000"_s}, {300, QString()}}};
}

}  // namespace

CStatusDlg::CStatusDlg(const MessagingServices& services, QWidget* parent)
    : GradientPage(parent), services_(services) {
  setObjectName(u"statusPage"_s);
  createTypeBox();
  createList();
  createMenu();
  getStatusButton_ = new PictureButton(u"Get &Status"_s, this);
  getStatusButton_->setObjectName(u"getStatusButton"_s);
  connect(getStatusButton_, &PictureButton::clicked, this, &CStatusDlg::getStatus);
  createLayout();
  selectType(u"SMS"_s);
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
  type_->setObjectName(u"messageType"_s);
  type_->addItems({u"Fax"_s, u"MMS"_s, u"SMS"_s, u"Voice"_s, u"WAP"_s});
  connect(type_, &QComboBox::currentIndexChanged, this, &CStatusDlg::fill);
}

void CStatusDlg::createList() {
  list_ = new RecordTable(model_, statusForm(), services_.settings, this);
  list_->header()->setSectionsMovable(true);
  list_->header()->setFirstSectionMovable(true);
  count_ = wrappedLabel({}, this);
  count_->setObjectName(u"statusCount"_s);
  exportButton_ = new ExportButton(*list_, services_.notifier, this);
}

void CStatusDlg::createMenu() {
  menu_ = new QMenu(this);
  menu_->setObjectName(u"statusMenu"_s);
  connect(menu_->addAction(u"Status"_s), &QAction::triggered, this, &CStatusDlg::getStatus);
  list_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& where) { menu_->popup(list_->viewport()->mapToGlobal(where)); });
}

void CStatusDlg::createLayout() {
  auto* top = new QHBoxLayout;
  top->addWidget(labelFor(type_, u"Message &Type:"_s));
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
  exportButton_->setSuggestedName(type_->currentText() + u" status"_s);
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
