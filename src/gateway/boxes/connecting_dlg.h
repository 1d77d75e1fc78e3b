#pragma once

#include "ui/gradient_page.h"

class QLabel;

namespace parlexo {

/// The small box with animation and label that stands there while the program waits. It takes no input and
/// blocks that of all other windows; only code closes it.
class CConnectingDlg final : public GradientDialog {
  Q_OBJECT

 public:
  explicit CConnectingDlg(QWidget* parent = nullptr);

  [[nodiscard]] static QString defaultText();

  [[nodiscard]] QString text() const;
  /// An empty text puts the default one back. The box grows for a long text and never shrinks, so that it
  /// stays quiet while numbers in the text count up.
  void setText(const QString& text);

  void reject() override {}

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QLabel* label_ = nullptr;
};

}  // namespace parlexo
