// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/screens/account_history_dlg.h"

#include <array>
#include <cstddef>
#include <utility>

#include <QHBoxLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "base/run_state.h"
#include "ui/export_button.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"
#include "ui/record_table.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// In the order of the columns.
constexpr std::array<QString HistoryRecord::*, 4> historyFields = {
    &HistoryRecord::id, &HistoryRecord::date, &HistoryRecord::amount, &HistoryRecord::description};
constexpr int historyDateColumn = 1;

RecordTable::Form historyForm() {
  return {.name = u"historyList"_s,
          .label = CAccountHistoryDlg::tr("Account History"),
          .columns = {{40, u"0000000"_s},
                      {120, u"00/00/0000 00:00:00"_s},
                      {50, u"-00000.00"_s},
                      {500, QString()}},
          .hasGrid = true};
}

}  // namespace

HistoryListModel::HistoryListModel(QObject* parent)
    : RecordListModel({tr("ID"), tr("Date"), tr("Amount"), tr("Description")}, parent) {}

QString HistoryListModel::textAt(int row, int column) const {
  return records_[static_cast<std::size_t>(row)].*historyFields.at(static_cast<std::size_t>(column));
}

QVariant HistoryListModel::sortNumberAt(int row, int column) const {
  if (column != historyDateColumn) return {};
  const auto key = toSortKey(records_[static_cast<std::size_t>(row)].date);
  return key ? QVariant(*key) : QVariant();
}

void HistoryListModel::setRecords(std::vector<HistoryRecord> records) {
  beginResetModel();
  records_ = std::move(records);
  endResetModel();
}

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
  if (std::exchange(shownUser_, user) != user) model_.setRecords({});
  auto records = fetchAccountHistory(services_);
  if (!records) return;
  model_.setRecords(std::move(*records));
  if (model_.rowCount() > 0) list_->selectRecord(model_.rowCount() - 1);
}

void CAccountHistoryDlg::showEvent(QShowEvent* event) {
  GradientPage::showEvent(event);
  if (shownUser_ != services_.state.userName)
    QMetaObject::invokeMethod(this, &CAccountHistoryDlg::refresh, Qt::QueuedConnection);
}

void CAccountHistoryDlg::createLayout() {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(look::tallPageMargins);
  layout->setSpacing(look::rowSpacing);
  layout->addWidget(list_, 1);
  layout->addLayout(createButtons());
}

QHBoxLayout* CAccountHistoryDlg::createButtons() {
  auto* explanation = wrappedLabel(tr("Displays the last 500 transactions for your account. (Prices "
                                      "are in your account's base currency)"),
                                   this);
  auto* exportButton = new ExportButton(*list_, services_.notifier, this);
  exportButton->setSuggestedName(tr("Account history"));
  auto* refreshButton = new PictureButton(tr("&Refresh"), this);
  refreshButton->setObjectName(u"refreshButton"_s);
  connect(refreshButton, &PictureButton::clicked, this, &CAccountHistoryDlg::refresh);
  auto* row = new QHBoxLayout;
  row->setSpacing(look::rowSpacing);
  row->addWidget(explanation, 1);
  row->addWidget(exportButton);
  row->addWidget(refreshButton);
  return row;
}

}  // namespace parlexo
