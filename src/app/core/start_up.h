// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>

#include <QString>

#include "app/core/run_stores.h"
#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "base/settings.h"
#include "connection/client/gateway.h"

namespace parlexo {

/// The windows that start-up opens one after the other; each call returns when its window has closed.
class StartUpWindows {
 public:
  virtual ~StartUpWindows() = default;

  /// Tells of another version; an empty `version` stands for a gateway that speaks another protocol.
  virtual void showUpgrade(const QString& version) = 0;
  /// True when the user has logged in, false when he gave up.
  [[nodiscard]] virtual bool logIn() = 0;
  /// Opens the main window, which hides the progress box once its balance is shown at the latest.
  virtual void runMainWindow() = 0;

 protected:
  StartUpWindows() = default;
  StartUpWindows(const StartUpWindows&) = default;
  StartUpWindows& operator=(const StartUpWindows&) = default;
};

/// What start-up works with; everything must outlive it.
struct StartUpParts {
  const RunState& state;
  Settings& settings;
  RunStores& stores;
  const Gateway& gateway;
  Notifier& notifier;
  Progress& progress;
  StartUpWindows& windows;
  /// Downloads the locator document into the run's state; false when the gateway's place stays unknown.
  std::function<bool()> locate;
};

/// The run of the program from its first progress box to the end of its main window. Knows no widget.
class StartUp {
 public:
  explicit StartUp(StartUpParts parts) : parts_(std::move(parts)) {}

  /// Runs every step in order. Whatever goes wrong on the way has been shown to the user when this
  /// returns. The result is the exit code of the program: -1 when the contacts could not be read,
  /// otherwise 0. The caller closes the session afterwards in either case (ShutDown).
  [[nodiscard]] int run();

 private:
  [[nodiscard]] bool loadStores();
  [[nodiscard]] bool reachGateway();
  [[nodiscard]] bool gatewaySpeaksOurProtocol();
  void compareClientVersion();

  StartUpParts parts_;
};

}  // namespace parlexo
