// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "base/call_runner.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "connection/locator/proxy_discovery.h"
#include "connection/locator/server_locator.h"

namespace parlexo {

/// Asks the user for the address and login of a proxy.
class ProxyLogin {
 public:
  virtual ~ProxyLogin() = default;

  /// Returns nullopt if the user cancelled.
  [[nodiscard]] virtual std::optional<ProxySettings> ask() = 0;

 protected:
  ProxyLogin() = default;
  ProxyLogin(const ProxyLogin&) = default;
  ProxyLogin& operator=(const ProxyLogin&) = default;
};

/// Locates the gateway at start-up, asking for a proxy login if a proxy requires one.
class GatewaySearch {
 public:
  /// All of them must outlive the search.
  struct Parts {
    const ServerLocator& locator;
    const ProxyDiscovery& discovery;
    CallRunner& runner;  ///< runs the downloads
    Progress& progress;
    ProxyLogin& login;
  };

  explicit GatewaySearch(const Parts& parts) : parts_(parts) {}

  /// Sets `state.gateway` and returns true, or returns false if the gateway could not be located. The first
  /// download uses the proxy of the system settings, if any. If that succeeds, `state.proxy` becomes the
  /// proxy that the settings have for the gateway's own address. If a proxy requires a login, the progress
  /// box is hidden while the user is asked once, the answer becomes `state.proxy`, and the download is
  /// repeated under the progress box; a second refusal is a failure.
  [[nodiscard]] bool run(RunState& state) const;

 private:
  [[nodiscard]] ServerLocator::Outcome locate(RunState& state, const ProxyAddress& preconfigured) const;
  void useConfiguredProxy(RunState& state) const;
  [[nodiscard]] bool logInAndRepeat(RunState& state) const;

  Parts parts_;
};

}  // namespace parlexo
