// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

#include "base/progress.h"
#include "ui/input_block.h"
#include "ui/waiting/connecting_dlg.h"

namespace parlexo {

/// Shows the program's progress box over the active window, at most one at a time. While it is open, input
/// for other windows is discarded. Every function may process pending timers and events.
class ProgressBox final : public Progress {
  Q_DECLARE_TR_FUNCTIONS(ProgressBox)

 public:
  ProgressBox() = default;
  ~ProgressBox() override;

  void show(const QString& text = {}) override;
  void setText(const QString& text) override;
  void setTransfer(const Transfer& transfer) override;
  void offerCancelAfter(std::chrono::milliseconds wait) override;
  void hide() override;
  [[nodiscard]] QString text() const override;

  [[nodiscard]] bool isShowing() const { return !box_.isNull(); }

  /// Shows the Cancel button; `cancel` is called at most once, when the user presses it. No-op without a box
  /// or if the button is already shown.
  void offerCancel(std::function<void()> cancel);
  /// Whether the user has pressed Cancel in the current box.
  [[nodiscard]] bool isCancelled() const { return box_ && isCancelled_; }
  /// Time since the first call for the current box; zero for that call.
  [[nodiscard]] std::chrono::milliseconds sinceFirstTask();
  /// The value set by offerCancelAfter() for the current box, otherwise `defaultValue`.
  [[nodiscard]] std::chrono::milliseconds untilCancel(std::chrono::milliseconds defaultValue) const;

 private:
  void showTransfer(const Transfer& transfer);
  void remove();

  std::unique_ptr<InputBlock> block_;
  QPointer<CConnectingDlg> box_;
  QElapsedTimer sinceRepaint_;
  QElapsedTimer sinceFirstTask_;
  std::optional<std::chrono::milliseconds> untilCancel_;
  QTimer transferTimer_;
  bool isOffered_ = false;
  bool isCancelled_ = false;
};

}  // namespace parlexo
