// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

#include <QObject>
#include <QTimer>

class QWidget;

namespace parlexo {

/// Keeps the keyboard in the program when windows open and close in quick succession. When a dialog and the
/// question that it asked close together, a window manager may give the focus to the dialog just as that
/// goes away, and then no window has it: no key reaches the program (openbox does this most of the time).
/// While this object exists, the window below is activated after a dialog has closed, and once more if no
/// window is active soon after. A program that is not in the foreground stays where it is.
class FocusKeeper final : public QObject {
  Q_OBJECT

 public:
  /// Needs a QApplication.
  FocusKeeper();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void observe(const QWidget& window, const QEvent& event);
  void startSettling();
  void check();

  QTimer timer_;
  std::size_t step_ = 0;
};

}  // namespace parlexo
