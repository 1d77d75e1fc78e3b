// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

namespace parlexo {

/// The program's push button: rounded, with a light-blue gradient, a text with mnemonic and an optional icon.
/// Space and Enter press it. In a GradientDialog it can be the default button.
class PictureButton : public QAbstractButton {
  Q_OBJECT
  Q_PROPERTY(bool isDefault READ isDefault WRITE setDefault)

 public:
  explicit PictureButton(const QString& text = {}, QWidget* parent = nullptr);

  /// The default button is painted in a darker blue and handles Enter for the dialog's other controls. At
  /// most one per dialog.
  void setDefault(bool isDefault);
  [[nodiscard]] bool isDefault() const { return isDefault_; }

  /// Fits text, icon and margins. At least 50 x 14 dialog units; 14 x 14 for a text of one character or none.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QSize contentSize() const;
  void paintBackground(QPainter& painter) const;
  void paintFocus(QPainter& painter) const;
  void paintContent(QPainter& painter) const;
  [[nodiscard]] bool isEmphasised() const { return isDefault_ && isEnabled(); }

  bool isDefault_ = false;
};

}  // namespace parlexo
