// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace parlexo {

/// While it lives, clicks, keys, wheel, drops and shortcuts are dropped, not kept for later. Only modal
/// windows that opened after it did still take input. Blocks may nest; they belong to the interface thread.
class InputBlock final : public QObject {
  Q_OBJECT

 public:
  enum class CloseRequests {
    /// Also the close button of window frames is dropped. A close() or accept() in code looks the same to Qt,
    /// so this is for waits in which no code of a page runs.
    Dropped,
    /// For blocks under a modal window, whose modality already holds the frames of the others.
    LeftToModality,
  };

  explicit InputBlock(CloseRequests closeRequests = CloseRequests::LeftToModality);
  ~InputBlock() override;

  /// Whether a press by an assistive tool, which is no input event, has to be dropped for `widget`.
  [[nodiscard]] static bool holds(const QWidget& widget);

  /// From now on blocks let input for `window` pass, for a window in which a wait can be cancelled.
  static void exempt(QWidget& window);

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  [[nodiscard]] bool lets(const QObject* target) const;

  CloseRequests closeRequests_;
  QPointer<QWidget> modalBefore_;
};

}  // namespace parlexo
