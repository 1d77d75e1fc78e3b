// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>

#include <QCoreApplication>
#include <QString>

#include "base/call_runner.h"
#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "base/settings.h"
#include "connection/client/gateway.h"

namespace parlexo {

/// Data that is loaded at start-up and saved at shut-down.
class RunStores {
 public:
  virtual ~RunStores() = default;

  /// Loads contacts and groups and reports errors to the user. Returns false if the program can't continue.
  [[nodiscard]] virtual bool loadContacts() = 0;
  /// Loads the status log and reports errors to the user; none of them stops the program.
  virtual void loadStatusLog() = 0;
  /// Frees contacts and groups, whose files are always up to date.
  virtual void releaseContacts() = 0;
  /// Saves the status log.
  virtual void saveStatusLog() = 0;

 protected:
  RunStores() = default;
  RunStores(const RunStores&) = default;
  RunStores& operator=(const RunStores&) = default;
};

/// The windows of start-up. Each function returns when its window has closed.
class StartUpWindows {
 public:
  virtual ~StartUpWindows() = default;

  /// Offers the upgrade to `version`; an empty `version` means that the gateway speaks another protocol.
  virtual void showUpgrade(const QString& version) = 0;
  /// Returns true if the user has logged in, false if the user cancelled.
  [[nodiscard]] virtual bool logIn() = 0;
  /// Runs the main window, which hides the progress box at the latest when it shows the balance.
  virtual void runMainWindow() = 0;

 protected:
  StartUpWindows() = default;
  StartUpWindows(const StartUpWindows&) = default;
  StartUpWindows& operator=(const StartUpWindows&) = default;
};

/// The dependencies of StartUp, which must outlive it.
struct StartUpParts {
  const RunState& state;
  Settings& settings;
  RunStores& stores;
  const Gateway& gateway;
  Notifier& notifier;
  Progress& progress;
  StartUpWindows& windows;
  /// Locates the gateway and stores its address in the run's state. Returns false if it can't be located.
  std::function<bool()> locate;
};

/// Runs the program from the first progress box until the main window has closed. Does not depend on widgets.
class StartUp {
  Q_DECLARE_TR_FUNCTIONS(StartUp)

 public:
  explicit StartUp(StartUpParts parts) : parts_(std::move(parts)) {}

  /// Runs all steps in order; a failed step is reported to the user and ends the run. Returns the program's
  /// exit code: -1 if the contacts could not be loaded, otherwise 0. The caller calls shutDown() in any case.
  [[nodiscard]] int run();

 private:
  [[nodiscard]] bool loadStores();
  [[nodiscard]] bool connectToGateway();
  [[nodiscard]] bool checkProtocolVersion();
  void checkClientVersion();

  StartUpParts parts_;
};

/// Ends the run, regardless of which step of start-up it reached: hides the progress box, releases the
/// contacts, saves the status log and closes the session. Errors are not reported to the user.
void shutDown(const RunState& state, RunStores& stores, Progress& progress, CallRunner& runner);

}  // namespace parlexo
