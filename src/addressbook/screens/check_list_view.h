// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>

#include "addressbook/screens/check_list_model.h"
#include "ui/row_list_view.h"

namespace parlexo {

/// Shows a CheckListModel as a list in which the space bar ticks and unticks the selected rows.
class CheckListView final : public RowListView {
  Q_OBJECT

 public:
  /// `label` is what a screen reader calls the list. `model` must outlive the view.
  CheckListView(CheckListModel& model, const QString& label, QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void toggleSelectedRows();
  [[nodiscard]] std::vector<int> rowsToToggle() const;

  CheckListModel& model_;
};

}  // namespace parlexo
