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

/// Finds the proxy that the system would use. Queries that may block are run by a CallRunner; without a
/// network they take some seconds.
class ProxyDiscovery {
 public:
  /// `address` is the target of the connection, on which the choice of proxy may depend. `runner` must
  /// outlive this object.
  ProxyDiscovery(QUrl address, CallRunner& runner,
                 std::shared_ptr<const ProxySystem> system = makeProxySystem());

  /// The HTTP proxy of the user's settings; empty if there is none. Always empty for addresses of this
  /// machine.
  [[nodiscard]] ProxyAddress configured() const { return configuredFor(address_); }
  /// The same for another address: settings may exclude hosts or have a proxy per scheme.
  [[nodiscard]] ProxyAddress configuredFor(const QUrl& address) const;
  /// The proxy of the settings, otherwise the one that the network's configuration script returns. Empty if
  /// neither has one, or the script is not available or returns anything but "PROXY ...".
  [[nodiscard]] ProxyAddress discover() const;

 private:
  using Search = std::function<QString(const ProxySystem&, const QUrl& address, const CancelFlag&)>;

  /// Returns the result of `search`; empty if it was cancelled.
  [[nodiscard]] QString run(const QUrl& address, const Search& search) const;

  QUrl address_;
  CallRunner& runner_;
  std::shared_ptr<const ProxySystem> system_;
};

}  // namespace parlexo
