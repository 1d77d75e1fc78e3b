// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <limits>

#include <QString>

#include "base/message_texts.h"
#include "base/message_type.h"
#include "base/run_state.h"

namespace parlexo {

class Gateway;
struct FileDraft;
struct FileUpload;
struct SendReply;

/// Use of the sender ID that the user has set.
enum class SenderIdUse { Set, Ignore };

/// How a message type is sent. A new type is a new row of the table in message_traits.cpp.
struct MessageTraits {
  MessageType type = MessageType::Sms;
  SenderIdUse senderIdUse = SenderIdUse::Set;
  TextId unreachable{};  ///< no readable reply
  TextId refused{};      ///< with "%i" for the gateway's result code
  TextId someFailed{};   ///< heading of the list of failed numbers
  TextId delivered{};

  // For types that carry a file; unset for SMS.
  const char* noFile = nullptr;  ///< no file selected; source text in the context FileSendFlow
  TextId cannotOpen{};           ///< with "%s" for the path
  TextId tooLarge{};
  TextId noMemory{};
  int GatewayLocation::*sizeLimit = nullptr;        ///< maximum length of the file in bytes
  int noteLimit = std::numeric_limits<int>::max();  ///< UTF-16 units; the flow refuses a longer note
  TextId noteTooLong{};

  /// Calls the gateway's send operation. Blocks; the progress box is the caller's.
  SendReply (*sendFile)(const Gateway& gateway, const QString& session, const FileDraft& draft,
                        const FileUpload& upload) = nullptr;
};

/// The row of `type`, which must be a type that a page sends: any but Voice.
[[nodiscard]] const MessageTraits& messageTraits(MessageType type);

}  // namespace parlexo
