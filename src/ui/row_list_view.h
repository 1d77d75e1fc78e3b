// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <QTreeView>

namespace parlexo {

/// A list with columns in the program's look. Several whole rows can be selected, and typed letters select
/// the next name that starts with them. All rows have the same height, so that long lists open without delay.
class RowListView : public QTreeView {
  Q_OBJECT

 public:
  /// `nameAt` returns the name in a row of `model`, `label` is the accessible name. The model must outlive
  /// the view.
  RowListView(QAbstractItemModel& model, std::function<QString(int row)> nameAt, const QString& label,
              QWidget* parent = nullptr);

  /// Sets the column widths in pixels. A column becomes wider if its header would not fit.
  void setColumnWidths(const std::vector<int>& widths);

  /// The width in pixels at which all columns are visible beside the scroll bar.
  [[nodiscard]] int fittingWidth() const;

  /// The selected rows in ascending order.
  [[nodiscard]] std::vector<int> selectedRows() const;
  /// The names in the selected rows, top to bottom.
  [[nodiscard]] QStringList selectedNames() const;
  /// Selects exactly the rows with these names and makes the first of them current.
  void selectNames(const QStringList& names);
  /// Calls `change`, which may reset the model, and restores selection, current row and scroll position for
  /// names that still exist.
  void preserveSelection(const std::function<void()>& change);
  /// The current row if it is selected, otherwise the first selected row, or -1 if there is none.
  [[nodiscard]] int chosenRow() const;

  void keyboardSearch(const QString& letters) override;

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  void makeCurrent(const QString& name);
  [[nodiscard]] int findName(const QString& beginning, int from) const;

  std::function<QString(int)> nameAt_;
  QString typed_;
  QElapsedTimer sinceTyped_;
};

}  // namespace parlexo
