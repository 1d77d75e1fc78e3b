// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/message_traits.h"

#include <algorithm>
#include <array>

#include <QCoreApplication>

#include "connection/client/gateway.h"
#include "messaging/core/file_send_flow.h"
#include "messaging/core/send_flow.h"

namespace parlexo {

namespace {

constexpr int maxMmsDescription = 10240;  // UTF-16 units

SendReply sendFax(const Gateway& gateway, const QString& session, const FileDraft& draft,
                  const FileUpload& upload) {
  return toSendReply(
      gateway.call<&GatewayClient::sendFax>(session, draft.fileName(), upload, draft.numbersList));
}

SendReply sendMms(const Gateway& gateway, const QString& session, const FileDraft& draft,
                  const FileUpload& upload) {
  return toSendReply(gateway.call<&GatewayClient::sendMms>(session, draft.note, draft.fileName(), upload,
                                                           draft.numbersList));
}

SendReply sendWap(const Gateway& gateway, const QString& session, const FileDraft& draft,
                  const FileUpload& upload) {
  return toSendReply(gateway.call<&GatewayClient::sendWap>(session, draft.note, draft.fileName(), upload,
                                                           draft.numbersList));
}

constexpr std::array traitsTable = {
    MessageTraits{.type = MessageType::Sms,
                  .unreachable = TextId::GatewayUnreachable,
                  .refused = TextId::SmsError,
                  .someFailed = TextId::SmsWarning,
                  .delivered = TextId::SmsSuccess},
    MessageTraits{.type = MessageType::Mms,
                  .unreachable = TextId::GatewayUnreachable,
                  .refused = TextId::MmsError,
                  .someFailed = TextId::MmsWarning,
                  .delivered = TextId::MmsSuccess,
                  .noFile = QT_TRANSLATE_NOOP(
                      "FileSendFlow", "No MMS media file has been selected. Select a MMS media file."),
                  .cannotOpen = TextId::MmsOpen,
                  .tooLarge = TextId::MmsTooLarge,
                  .noMemory = TextId::MmsMemory,
                  .sizeLimit = &GatewayLocation::maxFileSizeMobile,
                  .noteLimit = maxMmsDescription,
                  .noteTooLong = TextId::MmsDescriptionTooLong,
                  .sendFile = sendMms},
    MessageTraits{
        .type = MessageType::Fax,
        .unreachable = TextId::FaxTransport,
        .refused = TextId::FaxError,
        .someFailed = TextId::FaxWarning,
        .delivered = TextId::FaxSuccess,
        .noFile = QT_TRANSLATE_NOOP("FileSendFlow", "No fax file has been selected. Select a fax file."),
        .cannotOpen = TextId::FaxOpen,
        .tooLarge = TextId::FaxTooLarge,
        .noMemory = TextId::FaxMemory,
        .sizeLimit = &GatewayLocation::maxFileSize,
        .sendFile = sendFax},
    MessageTraits{.type = MessageType::Wap,
                  .senderIdUse = SenderIdUse::Ignore,
                  .unreachable = TextId::GatewayUnreachable,
                  .refused = TextId::WapError,
                  .someFailed = TextId::WapWarning,
                  .delivered = TextId::WapSuccess,
                  .noFile = QT_TRANSLATE_NOOP(
                      "FileSendFlow", "No WAP media file has been selected. Select a WAP media file."),
                  .cannotOpen = TextId::WapOpen,
                  .tooLarge = TextId::WapTooLarge,
                  .noMemory = TextId::WapMemory,
                  .sizeLimit = &GatewayLocation::maxFileSizeMobile,
                  .sendFile = sendWap},
};

}  // namespace

const MessageTraits& messageTraits(MessageType type) {
  const auto* row = std::find_if(traitsTable.begin(), traitsTable.end(),
                                 [type](const MessageTraits& traits) { return traits.type == type; });
  Q_ASSERT(row != traitsTable.end());
  return *row;
}

}  // namespace parlexo
