// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>

#include "app/core/balance_check.h"
#include "app/core/start_up.h"
#include "base/call_runner.h"
#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "base/session_renewal.h"
#include "base/settings.h"
#include "connection/client/background_gateway.h"
#include "connection/client/gateway.h"

namespace parlexo {

class CMainDlg;
class DiskStores;
struct MainTab;

/// The dependencies of ProgramScreens, which must outlive it.
struct WindowServices {
  RunState& state;
  Settings& settings;
  DiskStores& stores;
  const Gateway& gateway;
  const BackgroundGateway& background;
  Notifier& notifier;
  Progress& progress;
  CallRunner& runner;
};

/// Opens the windows of the program.
class ProgramScreens final : public StartUpWindows, public SessionRenewal {
 public:
  explicit ProgramScreens(const WindowServices& services)
      : services_(services),
        balance_(services.state, services.gateway, services.notifier, services.progress) {}

  void showUpgrade(const QString& version) override;
  [[nodiscard]] bool logIn() override;
  void runMainWindow() override;
  void logInAgain() override;

 private:
  [[nodiscard]] std::vector<MainTab> tabs();
  void refreshBalance(CMainDlg& window);
  void saveGeometry(const CMainDlg& window) const;

  WindowServices services_;
  BalanceCheck balance_;
  CMainDlg* mainWindow_ = nullptr;  ///< null while it is closed
};

}  // namespace parlexo
