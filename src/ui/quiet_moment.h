// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QWidget;

namespace parlexo {

/// Waits for a moment at which a dialog can open by itself without interrupting the user: `window` is active
/// with no menu, dialog or wait over it, no mouse button is pressed, and there has been no input for
/// `quietTime`. Input before the construction is ignored.
class QuietMoment final : public QObject {
  Q_OBJECT

 public:
  explicit QuietMoment(QWidget& window, std::chrono::milliseconds quietTime = std::chrono::seconds(2));

  /// Calls `act` once, from the event loop, at the next quiet moment. Replaces a pending `act`.
  void await(std::function<void()> act);

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void check();
  [[nodiscard]] bool isQuiet() const;

  QWidget& window_;
  std::chrono::milliseconds quietTime_;
  QElapsedTimer sinceInput_;
  QTimer timer_;
  std::function<void()> act_;
};

}  // namespace parlexo
