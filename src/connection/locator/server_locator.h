// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

#include <QDeadlineTimer>
#include <QUrl>

#include "base/call_runner.h"
#include "base/run_state.h"
#include "base/timeouts.h"
#include "connection/locator/bounded_download.h"
#include "connection/locator/proxy_text.h"

namespace parlexo {

/// Patience and limits of the locator's download.
struct LocatorLimits {
  std::chrono::milliseconds transfer = timeouts::locatorSilence;  ///< until connected, and then between bytes
  std::chrono::milliseconds retryDelay = timeouts::locatorRetry;  ///< before the second and last attempt
  qint64 documentBytes = 64 * 1024;                               ///< a longer document is read up to here
  std::chrono::milliseconds whole = timeouts::locatorWhole;       ///< all of it, with a second attempt
};

/// Where a redirect from `from` with the header "Location: `location`" leads; empty when it must not be
/// followed: it leads away from HTTP, from an encrypted site to an open one, or nowhere.
[[nodiscard]] QUrl redirectTarget(const QUrl& from, const QUrl& location);

/// Downloads the locator document from the service's web site. Waits in a local event loop; any thread may
/// use it.
class ServerLocator {
 public:
  /// What an attempt to locate the gateway came to.
  enum class Outcome {
    Located,       ///< everything is in the run's state
    ProxyRefusal,  ///< a proxy wants a login (HTTP status 407); asking for one is the caller's
    NotLocated,    ///< no connection, another status, or a document of another form
  };

  /// `site` is the web site's base address, "http://HOST:PORT".
  explicit ServerLocator(const QUrl& site, const LocatorLimits& limits = {});

  /// Downloads "/WSDLServerLocator.xml" and stores what it tells in `state.gateway`: all of it or, unless
  /// the outcome is Located, nothing. Where the proxy of `state` has a host, the request goes through it and
  /// carries its login; otherwise it goes through `preconfigured`, or straight when that is empty too. Up to
  /// five redirects are followed, through the same proxy. About 100 ms after `cancel` was raised (a second,
  /// where it waits for another attempt) it gives up.
  [[nodiscard]] Outcome locate(RunState& state, const ProxyAddress& preconfigured = {},
                               const CancelFlag& cancel = {}) const;

 private:
  [[nodiscard]] Download attempt(const ProxySettings& login, const ProxyAddress& preconfigured,
                                 const QDeadlineTimer& deadline, const CancelFlag& cancel) const;

  QUrl site_;
  LocatorLimits limits_;
};

}  // namespace parlexo
