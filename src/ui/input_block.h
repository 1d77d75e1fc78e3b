#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace parlexo {

/// While it lives, clicks, keys, wheel, drops, shortcuts and the window frame's close button are dropped,
/// not kept for later. Only modal windows that opened after it did still take input. Blocks may nest; they
/// belong to the interface thread.
class InputBlock final : public QObject {
  Q_OBJECT

 public:
  InputBlock();
  ~InputBlock() override;

  /// Whether a press by an assistive tool, which is no input event, has to be dropped for `widget`.
  [[nodiscard]] static bool holds(const QWidget& widget);

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  [[nodiscard]] bool lets(const QObject* target) const;

  QPointer<QWidget> modalBefore_;
};

}  // namespace parlexo
