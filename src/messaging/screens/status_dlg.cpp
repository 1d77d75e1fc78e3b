// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/status_dlg.h"

#include <array>
#include <cstddef>

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "messaging/core/status_file.h"
#include "messaging/core/status_query_flow.h"
#include "ui/export_button.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/record_table.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array listedTypes = {MessageType::Fax, MessageType::Mms, MessageType::Sms, MessageType::Voice,
                                    MessageType::Wap};

// The longest international number has 15 digits.
RecordTable::Form statusForm() {
  return {
      u"statusList"_s,
      CStatusDlg::tr("Status"),
      {{120, u"00/00/0000 00:00:00"_s}, {200, QString()}, {100, u"+000000000000000"_s}, {300, QString()}}};
}

}  // namespace

CStatusDlg::CStatusDlg(const MessagingServices& services, QWidget* parent)
    : GradientPage(parent), services_(services) {
  setObjectName(u"statusPage"_s);
  createTypeBox();
  createList();
  createMenu();
  getStatusButton_ = new PictureButton(tr("Get &Status"), this);
  getStatusButton_->setObjectName(u"getStatusButton"_s);
  connect(getStatusButton_, &PictureButton::clicked, this, &CStatusDlg::getStatus);
  createLayout();
  selectType(MessageType::Sms);
}

void CStatusDlg::selectType(MessageType type) {
  const QSignalBlocker blocker(type_);  // fill() is called once, even if the type stays the same
  type_->setCurrentIndex(type_->findText(toWord(type)));
  fill();
}

MessageType CStatusDlg::selectedType() const {
  return listedTypes.at(static_cast<std::size_t>(type_->currentIndex()));
}

void CStatusDlg::showEvent(QShowEvent* event) {
  if (shownRevision_ != services_.statusLog.revision()) fill();
  GradientPage::showEvent(event);
}

void CStatusDlg::createTypeBox() {
  type_ = new QComboBox(this);
  type_->setObjectName(u"messageType"_s);
  for (const MessageType type : listedTypes) type_->addItem(toWord(type));
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
  connect(menu_->addAction(tr("Status")), &QAction::triggered, this, &CStatusDlg::getStatus);
  list_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& where) { menu_->popup(list_->viewport()->mapToGlobal(where)); });
}

void CStatusDlg::createLayout() {
  auto* top = new QHBoxLayout;
  top->addWidget(labelFor(type_, tr("Message &Type:")));
  top->addWidget(type_);
  top->addStretch(1);
  auto* bottom = new QHBoxLayout;
  bottom->setSpacing(look::rowSpacing);
  bottom->addWidget(count_, 1);
  bottom->addWidget(exportButton_);
  bottom->addWidget(getStatusButton_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::pageMargins);
  layout->setSpacing(look::rowSpacing);
  layout->addLayout(top);
  layout->addWidget(list_, 1);
  layout->addLayout(bottom);
}

void CStatusDlg::fill() {
  model_.fill(services_.statusLog, selectedType());
  shownRevision_ = services_.statusLog.revision();
  showCount({});
  exportButton_->setSuggestedName(tr("%1 status").arg(type_->currentText()));
  list_->setCurrentIndex(list_->model()->index(0, 0));
}

void CStatusDlg::showCount(const QString& remark) {
  QString count = countText();
  if (!remark.isEmpty()) count += u' ' + remark;
  count_->setText(count);
}

QString CStatusDlg::countText() const {
  const int shown = model_.rowCount();
  const std::size_t all = services_.statusLog.entries().size();
  QString count = shown == 1 ? tr("1 message of this type, %1 in all.").arg(all)
                             : tr("%1 messages of this type, %2 in all.").arg(shown).arg(all);
  if (all > StatusFile::elementsRead)
    count += u' ' + tr("Only the newest %1 are kept when the program ends.").arg(StatusFile::elementsRead);
  return count;
}

void CStatusDlg::getStatus() {
  if (isQuerying_) return;
  const QScopedValueRollback guard(isQuerying_, true);
  showCount({});
  QStringList receipts;
  for (const int row : list_->selectedRecords()) receipts.append(model_.entryAt(row).receipt);
  const auto outcome = StatusQueryFlow(services_).query(receipts, [this](const StatusEntry& entry) {
    model_.setStatus(entry.receipt, entry.status);
    shownRevision_ = services_.statusLog.revision();
  });
  showCount(outcome.text());
}

}  // namespace parlexo
