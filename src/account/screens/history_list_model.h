// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "account/core/account_history.h"
#include "ui/record_list_model.h"

namespace parlexo {

/// The rows of the account history in the gateway's order.
class HistoryListModel final : public RecordListModel {
  Q_OBJECT

 public:
  explicit HistoryListModel(QObject* parent = nullptr);

  /// Replaces all rows.
  void fill(std::vector<HistoryRecord> records);

 protected:
  [[nodiscard]] int recordCount() const override { return static_cast<int>(records_.size()); }
  [[nodiscard]] QString textAt(int row, int column) const override;
  [[nodiscard]] QVariant sortNumberAt(int row, int column) const override;

 private:
  std::vector<HistoryRecord> records_;
};

}  // namespace parlexo
