// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

/// Every time limit of the client's connections, of its helper programs and of the waits for them. The
/// section "Time-outs" of docs/gateway-protocol.md lists the same values; keep both in step.
namespace parlexo::timeouts {

using std::chrono::milliseconds;
using std::chrono::seconds;

// An exchange with the gateway.

/// Looking up the name and connecting, all addresses of the host together.
inline constexpr seconds connect{30};
/// How long one address of the host is tried before the next is tried beside it. A broken IPv6 route or a
/// server of a pair that is down then costs seconds, not the whole of `connect`.
inline constexpr seconds nextAddress{2};
/// Longest wait for the next byte, sending or receiving. The gateway answers a send only when it has dealt
/// with every number of the list.
inline constexpr seconds silence{300};
/// All of the last exchange, sessionEnd. Its answer is not used, so the program's end must not wait for it.
inline constexpr seconds sessionEnd{3};
/// All of a query in the background: one that hangs must not hold up those behind it for long.
inline constexpr seconds background{60};

// The locator's download.

/// Longest wait for a connection or for the next byte.
inline constexpr seconds locatorSilence{30};
/// All of it, with redirects and a second attempt; the silence alone would let a document that comes byte by
/// byte last for days.
inline constexpr seconds locatorWhole{90};
/// Before the second and last attempt to connect.
inline constexpr seconds locatorRetry{1};

// The search for a proxy.

/// One question to the helper program. A look-up of a name on a dead network takes longer.
inline constexpr seconds proxyQuestion{8};
/// The download of the network's configuration script: a wait for its next byte, and all of it.
inline constexpr seconds proxyScriptSilence{5};
inline constexpr seconds proxyScriptWhole{10};
/// Processor time of the script, which comes from the network and may loop for ever.
inline constexpr seconds proxyScriptRun{2};

// The count of a document's pages.

/// The helper program may take this long; a document made to do harm would never end.
inline constexpr seconds pageCount{10};

// What the user sees of a wait.

/// Until a wait that its caller gave no progress box shows one. Most exchanges end sooner.
inline constexpr milliseconds untilBox{300};
/// Of exchanges under one box, before it offers Cancel.
inline constexpr seconds untilCancel{10};
/// The same for a query of many statuses, which is often started by mistake or takes longer than it is worth.
inline constexpr seconds untilStatusCancel{3};
/// From the end of a user's call to the next query in the background. One action of the user is often several
/// calls in a row.
inline constexpr milliseconds untilBackground{200};
/// How long a background query may take to end when the program does, before it is left behind.
inline constexpr milliseconds untilLeftBehind{500};
/// How long a cancelled exchange may take to end before it is left behind.
inline constexpr seconds afterCancel{2};

}  // namespace parlexo::timeouts
