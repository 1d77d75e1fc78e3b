// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QWidget>

namespace parlexo {

/// A page of the main window with the light-blue gradient as background.
class GradientPage : public QWidget {
  Q_OBJECT

 public:
  explicit GradientPage(QWidget* parent = nullptr);

  /// Reloads the displayed data. Does nothing by default.
  virtual void refresh() {}

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A dialog with the light-blue gradient as background and the program's icon. Enter presses the focused
/// PictureButton, otherwise the default one; Escape rejects. The dialog opens large enough for its wrapped
/// texts, limited by the screen.
class GradientDialog : public QDialog {
  Q_OBJECT

 public:
  explicit GradientDialog(QWidget* parent = nullptr);

  void setVisible(bool visible) override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

/// Returns the window to use as parent of a new dialog: the topmost modal window, otherwise the active one,
/// otherwise the main window, even while another program is active. Null if no window is open.
[[nodiscard]] QWidget* frontWindow();

}  // namespace parlexo
