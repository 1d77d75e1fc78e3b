#pragma once

#include <chrono>

#include <QUrl>

#include "base/run_state.h"

namespace parlexo {

/// Patience and limits of the locator's download.
struct LocatorLimits {
  std::chrono::milliseconds transfer{30'000};   ///< one attempt
  std::chrono::milliseconds retryDelay{1'000};  ///< before the second and last attempt to connect
  qint64 documentBytes = 64 * 1024;             ///< a longer document is read up to here
};

/// Downloads the locator document from the service's web site. Waits in a local event loop, so it is used by
/// the interface thread, under the progress box.
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
  /// the outcome is Located, nothing. The proxy of `state` is used where its host is set.
  [[nodiscard]] Outcome locate(RunState& state) const;

 private:
  QUrl site_;
  LocatorLimits limits_;
};

}  // namespace parlexo
