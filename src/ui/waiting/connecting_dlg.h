// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/gradient_page.h"

class QLabel;

namespace parlexo {

class PictureButton;

/// The small box with animation and label that stands there while the program waits. It blocks the input of
/// all other windows and takes none but a press of its Cancel button, once that is offered; only code closes
/// it.
class CConnectingDlg final : public GradientDialog {
  Q_OBJECT

 public:
  explicit CConnectingDlg(QWidget* parent = nullptr);

  [[nodiscard]] static QString defaultText();

  [[nodiscard]] QString text() const;
  /// An empty text puts the default one back. The box grows for a long text and never shrinks, so that it
  /// stays quiet while numbers in the text count up.
  void setText(const QString& text);

  /// A second, quieter line below the text; not there while empty. Changes nothing about the text.
  void setDetail(const QString& detail);

  /// Shows the Cancel button. A press, or Escape, emits cancelled() and makes the button dull.
  void offerCancel();

  /// Escape: like Cancel, as soon as that is offered.
  void reject() override;

 Q_SIGNALS:
  /// At most once.
  void cancelled();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void cancel();
  void growToFit();

  QLabel* label_ = nullptr;
  QLabel* detail_ = nullptr;
  PictureButton* cancel_ = nullptr;
};

}  // namespace parlexo
