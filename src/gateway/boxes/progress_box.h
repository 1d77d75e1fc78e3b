#pragma once

#include <memory>

#include <QElapsedTimer>
#include <QPointer>

#include "base/progress.h"
#include "gateway/boxes/connecting_dlg.h"
#include "ui/input_block.h"

namespace parlexo {

/// The progress box of the program as a window: at most one at a time, over the active window. While it
/// stands, input meant for other windows is dropped. All its functions may run waiting timers and events.
class ProgressBox final : public Progress {
 public:
  ProgressBox() = default;
  ~ProgressBox() override;

  void show(const QString& text = {}) override;
  void setText(const QString& text) override;
  void hide() override;
  [[nodiscard]] QString text() const override;

  [[nodiscard]] bool isShowing() const { return !box_.isNull(); }

 private:
  void remove();

  std::unique_ptr<InputBlock> block_;
  QPointer<CConnectingDlg> box_;
  QElapsedTimer sinceRepaint_;
};

}  // namespace parlexo
