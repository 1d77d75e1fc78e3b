// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

#include <QUrl>

#include "base/call_runner.h"
#include "connection/locator/bounded_download.h"
#include "connection/locator/proxy_system.h"
#include "connection/locator/proxy_text.h"

namespace parlexo {

/// Finds out which proxy the system itself would use, so that the user need not know. Everything that may
/// block is run by a CallRunner; without a network it is over after some seconds.
class ProxyDiscovery {
 public:
  /// `address` is what the proxy is wanted for; its host decides too. `runner` must outlive this.
  ProxyDiscovery(QUrl address, CallRunner& runner,
                 std::shared_ptr<const ProxySystem> system = makeProxySystem());

  /// The HTTP proxy of the user's settings; empty when they name none. Programs of this machine are reached
  /// without one, whatever the settings say.
  [[nodiscard]] ProxyAddress configured() const { return configuredFor(address_); }
  /// The same for another address: settings may make exceptions for a host or have a proxy for each scheme.
  [[nodiscard]] ProxyAddress configuredFor(const QUrl& address) const;
  /// The proxy of the settings, otherwise the one that the network's configuration script names. Empty when
  /// neither does, the script can't be had or does not answer with "PROXY ".
  [[nodiscard]] ProxyAddress discover() const;

 private:
  using Search = std::function<QString(const ProxySystem&, const QUrl& address, const CancelFlag&)>;

  /// What `search` finds for `address`; empty when the user gave up waiting.
  [[nodiscard]] QString run(const QUrl& address, const Search& search) const;

  QUrl address_;
  CallRunner& runner_;
  std::shared_ptr<const ProxySystem> system_;
};

}  // namespace parlexo
