// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include <QString>

#include "app/core/command_line.h"
#include "app/disk_stores.h"
#include "app/notification_dlg.h"
#include "app/program_screens.h"
#include "base/run_state.h"
#include "base/settings.h"
#include "connection/client/background_gateway.h"
#include "connection/client/background_queue.h"
#include "connection/client/gateway.h"
#include "ui/focus_keeper.h"
#include "ui/waiting/progress_box.h"
#include "ui/waiting/thread_call_runner.h"

namespace parlexo {

/// Creates and owns the objects that the whole program shares. Needs a QApplication.
class Application {
 public:
  explicit Application(const ProgramOptions& options);

  /// Runs the program from the first progress box until the session has been closed. Returns the exit code.
  [[nodiscard]] int run();

 private:
  [[nodiscard]] bool locateGateway();

  FocusKeeper focusKeeper_;
  QString site_;
  std::unique_ptr<Settings> settings_;
  RunState state_;
  NotificationNotifier notifier_;
  ProgressBox progress_;
  ThreadCallRunner runner_;
  BackgroundQueue backgroundQueue_;
  ForegroundRunner foreground_;
  Gateway gateway_;
  BackgroundGateway backgroundGateway_;
  DiskStores stores_;
  ProgramScreens screens_;
};

}  // namespace parlexo
