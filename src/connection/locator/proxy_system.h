// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <memory>

#include <QString>
#include <QUrl>

#include "base/call_runner.h"
#include "base/timeouts.h"

namespace parlexo {

/// What the platform knows about proxies. All functions block, for some seconds at most, may be called from
/// any thread and end soon after `cancel` was raised; what then or otherwise can't be told is empty.
class ProxySystem {
 public:
  virtual ~ProxySystem() = default;

  /// The proxy that the user's settings name for `address`, as text for parseProxyText(); empty when they
  /// name none.
  [[nodiscard]] virtual QString configuredProxy(const QUrl& address, const CancelFlag& cancel) const = 0;
  /// Where the network says that its proxy configuration script lies; empty when it says nothing.
  [[nodiscard]] virtual QUrl scriptAddress(const CancelFlag& cancel) const = 0;
  /// What the configuration script in `file` answers for `address` and its host, such as
  /// "PROXY proxy.local:8080; DIRECT"; empty when the script fails, takes too long or too much memory.
  [[nodiscard]] virtual QString scriptAnswer(const QString& file, const QUrl& address,
                                             const CancelFlag& cancel) const = 0;

 protected:
  ProxySystem() = default;
  ProxySystem(const ProxySystem&) = default;
  ProxySystem& operator=(const ProxySystem&) = default;
};

/// The one of this platform. A question that is not answered within `patience` stays open.
[[nodiscard]] std::shared_ptr<const ProxySystem> makeProxySystem(
    std::chrono::milliseconds patience = timeouts::proxyQuestion);

}  // namespace parlexo
