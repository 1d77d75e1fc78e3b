// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

namespace parlexo {

/// The push button of the program: rounded, with a light-blue gradient, a text with mnemonic and an
/// optional icon. Space and Enter press it; in a GradientDialog it can be the default button.
class PictureButton : public QAbstractButton {
  Q_OBJECT
  Q_PROPERTY(bool isDefault READ isDefault WRITE setDefault)

 public:
  explicit PictureButton(const QString& text = {}, QWidget* parent = nullptr);

  /// The default button stands out in the stronger blue and takes Enter from the dialog's other controls.
  /// One per dialog.
  void setDefault(bool isDefault);
  [[nodiscard]] bool isDefault() const { return isDefault_; }

  /// Room for text, icon and margins, at least 50 x 14 dialog units for a button with a text of several
  /// letters.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QSize contentSize() const;
  void paintGround(QPainter& painter) const;
  void paintFocus(QPainter& painter) const;
  void paintContent(QPainter& painter) const;
  [[nodiscard]] bool isStrong() const { return isDefault_ && isEnabled(); }

  bool isDefault_ = false;
};

}  // namespace parlexo
