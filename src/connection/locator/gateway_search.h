// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "base/call_runner.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "connection/locator/proxy_discovery.h"
#include "connection/locator/server_locator.h"

namespace parlexo {

/// Asks the user for the address of a proxy and the login to it.
class ProxyLogin {
 public:
  virtual ~ProxyLogin() = default;

  /// What the user entered; nothing when he cancelled.
  [[nodiscard]] virtual std::optional<ProxySettings> ask() = 0;

 protected:
  ProxyLogin() = default;
  ProxyLogin(const ProxyLogin&) = default;
  ProxyLogin& operator=(const ProxyLogin&) = default;
};

/// Locates the gateway at the start of a run, with a proxy login in between where a proxy demands one.
class GatewaySearch {
 public:
  /// All must outlive the search.
  struct Parts {
    const ServerLocator& locator;
    const ProxyDiscovery& discovery;
    CallRunner& runner;  ///< runs the downloads
    Progress& progress;
    ProxyLogin& login;
  };

  explicit GatewaySearch(const Parts& parts) : parts_(parts) {}

  /// True when `state.gateway` is filled. The first download uses the proxy of the system's settings, if
  /// any. When a proxy refuses it, the progress box is hidden, the user is asked once, the answer becomes
  /// `state.proxy` and the download is repeated under the progress box; a second refusal is a failure. When
  /// it went through without a login, `state.proxy` is what the settings name for the gateway's own address.
  [[nodiscard]] bool run(RunState& state) const;

 private:
  [[nodiscard]] ServerLocator::Outcome locate(RunState& state, const ProxyAddress& preconfigured) const;
  void useConfiguredProxy(RunState& state) const;
  [[nodiscard]] bool logInAndRepeat(RunState& state) const;

  Parts parts_;
};

}  // namespace parlexo
