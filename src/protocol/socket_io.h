// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "protocol/soap_context.h"

struct soap;

namespace parlexo::protocol {

/// Makes `context` connect, send and receive with waits that obey `patience` and can be cancelled at any
/// moment. The runtime's own waits can't be: they are single system calls as long as the whole time-out.
void installSocketIo(::soap& context, const IoPatience& patience);

}  // namespace parlexo::protocol
