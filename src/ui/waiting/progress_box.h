// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

#include "base/progress.h"
#include "ui/input_block.h"
#include "ui/waiting/connecting_dlg.h"

namespace parlexo {

/// The progress box of the program as a window: at most one at a time, over the active window. While it
/// stands, input meant for other windows is dropped. All its functions may run waiting timers and events.
class ProgressBox final : public Progress {
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

  /// Offers the user to end the wait; `cancel` is called once if he does. The offer goes with the box.
  /// Nothing happens without a box or where the offer stands already.
  void offerCancel(std::function<void()> cancel);
  /// Whether the user has pressed the Cancel of the box that is showing.
  [[nodiscard]] bool isCancelled() const { return box_ && isCancelled_; }
  /// How long tasks have been under way under the box that is showing: zero at the first call for a box,
  /// the time since then later.
  [[nodiscard]] std::chrono::milliseconds sinceFirstTask();
  /// What offerCancelAfter() has set for the box that is showing, otherwise `standard`.
  [[nodiscard]] std::chrono::milliseconds untilCancel(std::chrono::milliseconds standard) const;

 private:
  void showTransfer(const Transfer& transfer);
  void remove();

  std::unique_ptr<InputBlock> block_;
  QPointer<CConnectingDlg> box_;
  QElapsedTimer sinceRepaint_;
  QElapsedTimer exchanging_;
  std::optional<std::chrono::milliseconds> untilCancel_;
  QTimer transferTimer_;
  bool isOffered_ = false;
  bool isCancelled_ = false;
};

}  // namespace parlexo
