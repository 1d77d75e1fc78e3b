#pragma once

#include <string>

#include <QString>

#include "base/message_texts.h"
#include "base/run_state.h"
#include "base/transfer.h"
#include "connection/client/gateway.h"
#include "messaging/core/message_file.h"
#include "messaging/core/send_flow.h"

namespace parlexo {

/// The kinds of message that carry a file.
enum class FileKind { Fax, Mms, Wap };

/// Characters that the note of a WAP push may have, and the description of an MMS.
inline constexpr int longestWapNote = 120;
inline constexpr int longestMmsDescription = 10240;

/// What a send operation takes, in the bytes of the wire.
struct FileParcel {
  std::string session;
  std::string note;  ///< the description of an MMS, the note of a WAP push
  std::string fileName;
  FileBytes bytes;
  std::string numbers;
  Transfer transfer;  ///< follows the file on its way out

  [[nodiscard]] protocol::BinaryData data() const {
    return {reinterpret_cast<const unsigned char*>(bytes->data()), static_cast<std::int32_t>(bytes->size())};
  }
};

/// In what the kinds differ on their way out.
struct FileMessageKind {
  SendKind send;
  QString noFile;
  TextId cannotOpen;  ///< holds "%s" for the path
  TextId tooLarge;
  TextId noMemory;
  int GatewayLocation::*limit;  ///< bytes that the file may have
  bool limitsNote;              ///< a note longer than longestMmsDescription is refused
  SendReply (*operation)(const Gateway& gateway, const FileParcel& parcel);
};

[[nodiscard]] const FileMessageKind& fileMessageKind(FileKind kind);

}  // namespace parlexo
