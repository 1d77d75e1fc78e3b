// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include "server/gateway_replies.h"
#include "server/http_message.h"
#include "simulator/fault.h"

namespace parlexo::simulator {

/// Whether a fault of this kind stands in the place of the operation. The others spoil or change the answer
/// of an operation that was carried out.
[[nodiscard]] bool preventsOperation(FaultKind kind);

/// What `fault` makes of the `proper` reply.
[[nodiscard]] server::HttpReply misbehave(const Fault& fault, server::HttpReply proper);

/// A document that every client must refuse: its server line lacks the port.
[[nodiscard]] QByteArray malformedLocatorDocument(const server::Location& location);

}  // namespace parlexo::simulator
