// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QWidget;

namespace parlexo {

/// Finds a moment at which a dialog that opens by itself interrupts nothing: `window` is active with no menu,
/// dialog or wait over it, and the user has pressed no key or mouse button for a while. Input from before its
/// construction does not count.
class QuietMoment final : public QObject {
  Q_OBJECT

 public:
  explicit QuietMoment(QWidget& window, std::chrono::milliseconds quietTime = std::chrono::seconds(2));

  /// Calls `act` once, from the event loop, at the next quiet moment; replaces an earlier `act` that still
  /// waits.
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
