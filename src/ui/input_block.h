// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace parlexo {

/// Discards mouse, keyboard, touch, wheel, drop and shortcut input during its lifetime. Only modal windows
/// opened after its construction still receive input. Blocks may nest. Use on the user-interface thread only.
class InputBlock final : public QObject {
  Q_OBJECT

 public:
  enum class CloseRequests {
    /// Close events are discarded as well. Qt can't distinguish a click on the close button from a close() or
    /// accept() in code, so use this only for waits during which no code of a page runs.
    Dropped,
    /// Close events pass. For blocks under a modal window, which already disables the other windows' frames.
    LeftToModality,
  };

  explicit InputBlock(CloseRequests closeRequests = CloseRequests::LeftToModality);
  ~InputBlock() override;

  /// Returns whether input for `widget` is blocked. Needed for presses by assistive tools, which are not
  /// input events.
  [[nodiscard]] static bool isBlocked(const QWidget& widget);

  /// Exempts `window` from all blocks, for a window with a Cancel button for the wait.
  static void exempt(QWidget& window);

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  [[nodiscard]] bool isAllowed(const QObject* target) const;

  CloseRequests closeRequests_;
  QPointer<QWidget> modalBefore_;
};

}  // namespace parlexo
