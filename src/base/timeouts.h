// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

/// Every time limit of the client's connections and helper programs, and of the user interface that waits for
/// them. Keep the section "Timeouts" of docs/gateway-protocol.md in sync.
namespace parlexo::timeouts {

using std::chrono::milliseconds;
using std::chrono::seconds;

// Calls to the gateway.

/// Name lookup and connecting, for all addresses of the host together.
inline constexpr seconds connect{30};
/// How long to try one address before also trying the next. Limits the cost of a broken IPv6 route or of a
/// server that is down to seconds.
inline constexpr seconds nextAddress{2};
/// Maximum wait for the next byte, sending or receiving. Long, because the gateway answers a send only after
/// it has processed every number of the list.
inline constexpr seconds silence{300};
/// The whole sessionEnd call at exit. Short, because its response is not used.
inline constexpr seconds sessionEnd{3};
/// A whole background query. A query that hangs delays those queued behind it.
inline constexpr seconds background{60};

// Download of the locator document.

/// Maximum wait for a connection or for the next byte.
inline constexpr seconds locatorSilence{30};
/// The whole download, including redirects and the second attempt. Also limits a server that sends byte by
/// byte, which `locatorSilence` alone would not.
inline constexpr seconds locatorWhole{90};
/// Delay before the second and last attempt to connect.
inline constexpr seconds locatorRetry{1};

// Proxy discovery.

/// One query of the helper program. Shorter than a name lookup on a dead network.
inline constexpr seconds proxyQuestion{8};
/// Download of the network's proxy configuration script: maximum wait for the next byte, and total time.
inline constexpr seconds proxyScriptSilence{5};
inline constexpr seconds proxyScriptWhole{10};
/// CPU time of the script, which is untrusted and may loop forever.
inline constexpr seconds proxyScriptRun{2};

// Counting the pages of a document.

/// Run time of the helper program. A malicious document may never finish.
inline constexpr seconds pageCount{10};

// Waits that the user sees.

/// Delay before a wait without a progress box shows one. Most calls end sooner.
inline constexpr milliseconds untilBox{300};
/// Total time of the tasks under one progress box before it offers Cancel.
inline constexpr seconds untilCancel{10};
/// The same for a query of many statuses, which users often start by mistake or lose patience with.
inline constexpr seconds untilStatusCancel{3};
/// Delay between the end of a user's call and the next background query, because one user action is often a
/// sequence of calls.
inline constexpr milliseconds untilBackground{200};
/// How long exit waits for a cancelled background query to end before it is abandoned.
inline constexpr milliseconds untilAbandoned{500};
/// How long to wait for a cancelled call to end before it is abandoned.
inline constexpr seconds afterCancel{2};

}  // namespace parlexo::timeouts
