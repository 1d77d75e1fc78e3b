// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/core/account_services.h"
#include "account/screens/history_list_model.h"
#include "ui/gradient_page.h"

class QHBoxLayout;

namespace parlexo {

class RecordTable;

/// The account history: the last movements on the account, newest at the end.
class CAccountHistoryDlg final : public GradientPage {
  Q_OBJECT

 public:
  /// Fetches the history at once. `services` must refer to objects that outlive the page.
  explicit CAccountHistoryDlg(const AccountServices& services, QWidget* parent = nullptr);

  /// Fetches the history anew. After a failure the rows stay as they were.
  void refresh() override;

 protected:
  /// Another user may have logged in since the history was fetched.
  void showEvent(QShowEvent* event) override;

 private:
  void createLayout();
  [[nodiscard]] QHBoxLayout* createButtons();

  AccountServices services_;
  HistoryListModel model_;
  RecordTable* list_;
  bool isLoading_ = false;
  QString shownUser_;  ///< whose history it is
};

}  // namespace parlexo
