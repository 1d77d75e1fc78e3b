// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "messaging/core/messaging_services.h"
#include "messaging/core/schedule.h"

namespace parlexo {

/// Whether the sender ID of the run goes along with a kind of message.
enum class SenderIdUse { Set, Leave };

/// Tells the gateway what holds for the next message: no schedule, then the schedule if there is one,
/// then the sender ID if there is one and the kind of message uses it. Returns false when the send must be
/// given up; the user has then been told why.
[[nodiscard]] bool announceSend(const MessagingServices& services, const Schedule& schedule, SenderIdUse use);

}  // namespace parlexo
