// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <QTreeView>

namespace parlexo {

/// A list with columns in the program's look: whole rows are selected, several at a time, and typed letters
/// find a name. Rows are of one height, so that long lists open at once.
class RowListView : public QTreeView {
  Q_OBJECT

 public:
  /// `label` is what a screen reader calls the list; `nameOf` gives the name in a row of `model`. The model
  /// must outlive the view.
  RowListView(QAbstractItemModel& model, std::function<QString(int row)> nameOf, const QString& label,
              QWidget* parent = nullptr);

  /// Gives the columns these widths in pixels, or more where a header needs more to be read.
  void setColumnWidths(const std::vector<int>& widths);

  /// The width at which all columns are seen beside the scroll bar.
  [[nodiscard]] int fittingWidth() const;

  /// The selected rows from the top.
  [[nodiscard]] std::vector<int> selectedRows() const;
  /// The names in the selected rows from the top.
  [[nodiscard]] QStringList selectedNames() const;
  /// Selects the rows with these names, no others, and makes the first of them the current one.
  void selectNames(const QStringList& names);
  /// Runs `change`, which may fill the model anew, and then brings selection, current row and scroll
  /// position back, as far as the names are still there.
  void keepPlace(const std::function<void()>& change);
  /// The current row when it is selected, else the first that is; -1 when none is.
  [[nodiscard]] int chosenRow() const;

  void keyboardSearch(const QString& letters) override;

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  void makeCurrent(const QString& name);
  [[nodiscard]] int rowOfName(const QString& beginning, int from) const;

  std::function<QString(int)> nameOf_;
  QString typed_;
  QElapsedTimer sinceTyped_;
};

}  // namespace parlexo
