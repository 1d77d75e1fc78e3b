// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "account/core/account_history.h"
#include "account/core/account_services.h"
#include "ui/gradient_page.h"
#include "ui/record_list_model.h"

class QHBoxLayout;

namespace parlexo {

class RecordTable;

/// The rows of the account history, in the gateway's order.
class HistoryListModel final : public RecordListModel {
  Q_OBJECT

 public:
  explicit HistoryListModel(QObject* parent = nullptr);

  /// Replaces all rows.
  void setRecords(std::vector<HistoryRecord> records);

 protected:
  [[nodiscard]] int recordCount() const override { return static_cast<int>(records_.size()); }
  [[nodiscard]] QString textAt(int row, int column) const override;
  [[nodiscard]] QVariant sortNumberAt(int row, int column) const override;

 private:
  std::vector<HistoryRecord> records_;
};

/// The page with the account history: the last transactions, newest at the end.
class CAccountHistoryDlg final : public GradientPage {
  Q_OBJECT

 public:
  /// Fetches the history immediately. `services` must refer to objects that outlive the page.
  explicit CAccountHistoryDlg(const AccountServices& services, QWidget* parent = nullptr);

  /// Fetches the history again. If that fails, the old rows remain.
  void refresh() override;

 protected:
  /// Refreshes the page if another user has logged in since the history was fetched.
  void showEvent(QShowEvent* event) override;

 private:
  void createLayout();
  [[nodiscard]] QHBoxLayout* createButtons();

  AccountServices services_;
  HistoryListModel model_;
  RecordTable* list_;
  bool isLoading_ = false;
  QString shownUser_;  ///< the user whose history is shown
};

}  // namespace parlexo
