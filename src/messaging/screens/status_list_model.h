// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QHash>

#include "base/message_type.h"
#include "messaging/core/status_log.h"
#include "ui/record_list_model.h"

namespace parlexo {

/// The rows of the status page: the log entries of one message type, sorted by date.
class StatusListModel final : public RecordListModel {
  Q_OBJECT

 public:
  explicit StatusListModel(QObject* parent = nullptr);

  /// Replaces all rows by the entries of `log` that have this type.
  void fill(const StatusLog& log, MessageType type);

  /// Changes the status in the row of `receipt`. Does nothing if there is none.
  void setStatus(const QString& receipt, const QString& status);

  [[nodiscard]] const StatusEntry& entryAt(int row) const { return rows_[static_cast<std::size_t>(row)]; }

 protected:
  [[nodiscard]] int recordCount() const override { return static_cast<int>(rows_.size()); }
  [[nodiscard]] QString textAt(int row, int column) const override;
  [[nodiscard]] QVariant sortNumberAt(int row, int column) const override;

 private:
  std::vector<StatusEntry> rows_;
  QHash<QString, int> rowByReceipt_;
};

}  // namespace parlexo
