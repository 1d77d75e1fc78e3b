#pragma once

#include <string_view>

#include <QByteArray>

#include "simulator/fault.h"
#include "simulator/http_message.h"

namespace parlexo::simulator {

/// Whether a fault of this kind stands in the place of the operation. The others spoil or change the answer
/// of an operation that was carried out.
[[nodiscard]] bool preventsOperation(FaultKind kind);

/// What `fault` makes of the `proper` reply.
[[nodiscard]] HttpReply misbehave(const Fault& fault, HttpReply proper);

/// A SOAP fault under HTTP status 500.
[[nodiscard]] HttpReply soapFaultReply(std::string_view code, std::string_view reason);

/// A reply of one line of text.
[[nodiscard]] HttpReply plainReply(int status, const QByteArray& text);

}  // namespace parlexo::simulator
