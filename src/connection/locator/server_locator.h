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

/// Limits of the download of the locator document.
struct LocatorLimits {
  std::chrono::milliseconds transfer =
      timeouts::locatorSilence;  ///< maximum wait for a connection or the next byte
  std::chrono::milliseconds retryDelay =
      timeouts::locatorRetry;                                ///< delay before the second and last attempt
  qint64 documentBytes = 64 * 1024;                          ///< a longer document is truncated to this size
  std::chrono::milliseconds whole = timeouts::locatorWhole;  ///< total time of all attempts
};

/// Returns the target of a redirect from `from` with the header "Location: `location`". Empty if the redirect
/// must not be followed: it is invalid, leaves HTTP, or leads from HTTPS to HTTP.
[[nodiscard]] QUrl redirectTarget(const QUrl& from, const QUrl& location);

/// Downloads the locator document from the service's web site. May be used on any thread.
class ServerLocator {
 public:
  enum class Outcome {
    Located,       ///< the location is stored in the run state
    ProxyRefusal,  ///< a proxy requires a login (HTTP status 407); the caller has to ask for one
    NotLocated,    ///< no connection, another status, or a malformed document
  };

  /// `site` is the web site's base address, "http://HOST:PORT".
  explicit ServerLocator(const QUrl& site, const LocatorLimits& limits = {});

  /// Downloads "/WSDLServerLocator.xml" and stores the location in `state.gateway`, which is unchanged unless
  /// the outcome is Located. Uses the proxy of `state` with its login if that has a host, otherwise
  /// `preconfigured`, or no proxy if that is empty too. Up to five redirects are followed, through the same
  /// proxy. Blocks in a local event loop; returns about 100 ms after `cancel` is raised, or up to a second
  /// during the delay before the second attempt.
  [[nodiscard]] Outcome locate(RunState& state, const ProxyAddress& preconfigured = {},
                               const CancelFlag& cancel = {}) const;

 private:
  [[nodiscard]] Download attempt(const ProxySettings& login, const ProxyAddress& preconfigured,
                                 const QDeadlineTimer& deadline, const CancelFlag& cancel) const;

  QUrl site_;
  LocatorLimits limits_;
};

}  // namespace parlexo
