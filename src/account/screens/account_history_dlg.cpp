// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/screens/account_history_dlg.h"

#include <utility>

#include <QHBoxLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "base/run_state.h"
#include "ui/export_button.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/record_table.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

RecordTable::Form historyForm() {
  return {u"historyList"_s,
          u"Account History"_s,
          {{40, u"0000000"_s}, {120, u"00/00/0000 00:00:00"_s}, {50, u"-00000.00"_s}, {500, QString()}},
          true};
}

}  // namespace

CAccountHistoryDlg::CAccountHistoryDlg(const AccountServices& services, QWidget* parent)
    : GradientPage(parent),
      services_(services),
      list_(new RecordTable(model_, historyForm(), services.settings, this)) {
  setObjectName(u"historyPage"_s);
  createLayout();
  refresh();
}

void CAccountHistoryDlg::refresh() {
  if (isLoading_) return;
  const QScopedValueRollback guard(isLoading_, true);
  const QString& user = services_.state.userName;
  if (std::exchange(shownUser_, user) != user) model_.fill({});
  auto records = AccountHistoryFlow(services_).load();
  if (!records) return;
  model_.fill(std::move(*records));
  if (model_.rowCount() > 0) list_->selectRecord(model_.rowCount() - 1);
}

void CAccountHistoryDlg::showEvent(QShowEvent* event) {
  GradientPage::showEvent(event);
  if (shownUser_ != services_.state.userName)
    QMetaObject::invokeMethod(this, &CAccountHistoryDlg::refresh, Qt::QueuedConnection);
}

void CAccountHistoryDlg::createLayout() {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(14, 14, 14, 12);
  layout->setSpacing(10);
  layout->addWidget(list_, 1);
  layout->addLayout(createButtons());
}

QHBoxLayout* CAccountHistoryDlg::createButtons() {
  auto* explanation = wrappedLabel(
      u"Displays the last 500 transactions for your account. (Prices "
      "are in your account's base currency)"_s,
      this);
  auto* exportButton = new ExportButton(*list_, services_.notifier, this);
  exportButton->setSuggestedName(u"Account history"_s);
  auto* refreshButton = new PictureButton(u"&Refresh"_s, this);
  refreshButton->setObjectName(u"refreshButton"_s);
  connect(refreshButton, &PictureButton::clicked, this, &CAccountHistoryDlg::refresh);
  auto* row = new QHBoxLayout;
  row->setSpacing(10);
  row->addWidget(explanation, 1);
  row->addWidget(exportButton);
  row->addWidget(refreshButton);
  return row;
}

}  // namespace parlexo
