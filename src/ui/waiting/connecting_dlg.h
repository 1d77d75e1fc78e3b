// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/gradient_page.h"

class QLabel;

namespace parlexo {

class PictureButton;

/// The progress box: a small frameless dialog with an animation and a text. It is modal to all other windows
/// and accepts no input except for its Cancel button, once offered. Only code can close it.
class CConnectingDlg final : public GradientDialog {
  Q_OBJECT

 public:
  explicit CConnectingDlg(QWidget* parent = nullptr);

  [[nodiscard]] static QString defaultText();

  [[nodiscard]] QString text() const;
  /// An empty text restores the default. The box grows for a long text and never shrinks, so that it does not
  /// flicker while numbers in the text change.
  void setText(const QString& text);

  /// Sets a second line below the text; hidden while empty.
  void setDetail(const QString& detail);

  /// Shows the Cancel button. Pressing it, or Escape, emits cancelled() and disables the button.
  void offerCancel();

  /// Called for Escape: presses Cancel if it is offered.
  void reject() override;

 Q_SIGNALS:
  /// Emitted at most once.
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
