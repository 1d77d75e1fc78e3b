// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

#include <QObject>
#include <QTimer>

class QWidget;

namespace parlexo {

/// Restores the keyboard focus after dialogs have closed in quick succession. If a dialog and a message box
/// over it close together, a window manager may focus the dialog while it is being destroyed, so that no
/// window of the program receives keys (openbox usually does this). While this object exists, the front
/// window is activated if none is active shortly after a window was shown or hidden. A program in the
/// background is not brought to the foreground.
class FocusKeeper final : public QObject {
  Q_OBJECT

 public:
  /// The QApplication must exist.
  FocusKeeper();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void observe(const QWidget& window, const QEvent& event);
  void restartChecks();
  void check();

  QTimer timer_;
  std::size_t step_ = 0;
};

}  // namespace parlexo
