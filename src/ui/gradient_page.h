// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QWidget>

namespace parlexo {

/// A page of the main window on the light-blue gradient.
class GradientPage : public QWidget {
  Q_OBJECT

 public:
  explicit GradientPage(QWidget* parent = nullptr);

  /// Fetches anew what the page shows, where that can change behind its back.
  virtual void refresh() {}

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A dialog on the light-blue gradient, with the program's icon. Enter presses the PictureButton that has
/// the focus, else the one that is the default; Escape rejects. It opens as high as its texts need, if the
/// screen is.
class GradientDialog : public QDialog {
  Q_OBJECT

 public:
  explicit GradientDialog(QWidget* parent = nullptr);

  void setVisible(bool visible) override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace parlexo
