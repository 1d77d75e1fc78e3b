// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// The type of a message. The client has no page for voice messages.
enum class MessageType { Sms, Mms, Fax, Wap, Voice };

/// The word for a type in the status file, in logs and in an account's history: "SMS", "MMS", "Fax", "WAP" or
/// "Voice".
[[nodiscard]] QString toWord(MessageType type);

}  // namespace parlexo
