// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <memory>

#include <QString>
#include <QUrl>

#include "base/call_runner.h"
#include "base/timeouts.h"

namespace parlexo {

/// The platform's proxy configuration. Thread-safe. All functions block, for some seconds at most, and return
/// soon after `cancel` is raised. On failure and when cancelled they return an empty value.
class ProxySystem {
 public:
  virtual ~ProxySystem() = default;

  /// The proxy that the user's settings have for `address`, as text for parseProxyText(); empty if there is
  /// none.
  [[nodiscard]] virtual QString configuredProxy(const QUrl& address, const CancelFlag& cancel) const = 0;
  /// The address of the network's proxy configuration script; empty if it announces none.
  [[nodiscard]] virtual QUrl scriptAddress(const CancelFlag& cancel) const = 0;
  /// The result of the configuration script in `file` for `address` and its host, such as
  /// "PROXY proxy.local:8080; DIRECT"; empty if the script fails or exceeds its limits on time and memory.
  [[nodiscard]] virtual QString scriptAnswer(const QString& file, const QUrl& address,
                                             const CancelFlag& cancel) const = 0;

 protected:
  ProxySystem() = default;
  ProxySystem(const ProxySystem&) = default;
  ProxySystem& operator=(const ProxySystem&) = default;
};

/// Creates the implementation of this platform. Queries fail after `patience`, where the platform allows.
[[nodiscard]] std::shared_ptr<const ProxySystem> makeProxySystem(
    std::chrono::milliseconds patience = timeouts::proxyQuestion);

}  // namespace parlexo
