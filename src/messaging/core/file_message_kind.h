// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <QString>

#include "base/message_texts.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "connection/client/gateway.h"
#include "messaging/core/message_file.h"
#include "messaging/core/send_flow.h"

namespace parlexo {

/// The kinds of message that carry a file.
enum class FileKind { Fax, Mms, Wap };

/// Characters that the note of a WAP push may have, and the description of an MMS.
inline constexpr int longestWapNote = 120;
inline constexpr int longestMmsDescription = 10240;

/// What a send operation takes.
struct FileParcel {
  QString session;
  QString note;  ///< the description of an MMS, the note of a WAP push
  QString fileName;
  FileUpload upload;
  QString numbers;
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
