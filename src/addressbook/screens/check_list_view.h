#pragma once

#include <vector>

#include <QElapsedTimer>
#include <QString>
#include <QTreeView>

#include "addressbook/screens/check_list_model.h"

namespace parlexo {

/// Shows a CheckListModel as a list with full-row selection in which the space bar ticks and unticks the
/// selected rows and typed letters find a name. Rows are of one height, so that long lists open at once.
class CheckListView final : public QTreeView {
  Q_OBJECT

 public:
  /// `label` is what a screen reader calls the list. `model` must outlive the view.
  CheckListView(CheckListModel& model, const QString& label, QWidget* parent = nullptr);

  /// Gives the columns these widths in pixels, or more where a header needs more to be read.
  void setColumnWidths(const std::vector<int>& widths);

  /// The width at which all columns are seen beside the scroll bar.
  [[nodiscard]] int fittingWidth() const;

  void keyboardSearch(const QString& letters) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void toggleSelectedRows();
  [[nodiscard]] std::vector<int> rowsToToggle() const;
  [[nodiscard]] int rowOfName(const QString& beginning, int from) const;

  CheckListModel& model_;
  QString typed_;
  QElapsedTimer sinceTyped_;
};

}  // namespace parlexo
