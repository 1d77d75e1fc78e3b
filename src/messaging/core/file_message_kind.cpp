// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/file_message_kind.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

SendReply toSendReply(const auto& reply) {
  return {reply.answered(), reply->nErrorCode, fromWire(reply->sListReciepts), reply.outcomeUnknown()};
}

SendReply sendFax(const Gateway& gateway, const FileParcel& fax) {
  return toSendReply(
      gateway.call<&GatewayClient::sendFax>(fax.session, fax.fileName, fax.upload, fax.numbers));
}

SendReply sendMms(const Gateway& gateway, const FileParcel& mms) {
  return toSendReply(
      gateway.call<&GatewayClient::sendMms>(mms.session, mms.note, mms.fileName, mms.upload, mms.numbers));
}

SendReply sendWap(const Gateway& gateway, const FileParcel& wap) {
  return toSendReply(
      gateway.call<&GatewayClient::sendWap>(wap.session, wap.note, wap.fileName, wap.upload, wap.numbers));
}

}  // namespace

const FileMessageKind& fileMessageKind(FileKind kind) {
  static const FileMessageKind fax = {{u"Fax"_s, SenderIdUse::Set, TextId::FaxTransport, TextId::FaxError,
                                       TextId::FaxWarning, TextId::FaxSuccess},
                                      u"No fax file has been selected. Select a fax file."_s,
                                      TextId::FaxOpen,
                                      TextId::FaxTooLarge,
                                      TextId::FaxMemory,
                                      &GatewayLocation::maxFileSize,
                                      false,
                                      sendFax};
  static const FileMessageKind mms = {{u"MMS"_s, SenderIdUse::Set, TextId::GatewayUnreachable,
                                       TextId::MmsError, TextId::MmsWarning, TextId::MmsSuccess},
                                      u"No MMS media file has been selected. Select a MMS media file."_s,
                                      TextId::MmsOpen,
                                      TextId::MmsTooLarge,
                                      TextId::MmsMemory,
                                      &GatewayLocation::maxFileSizeMobile,
                                      true,
                                      sendMms};
  static const FileMessageKind wap = {{u"WAP"_s, SenderIdUse::Leave, TextId::GatewayUnreachable,
                                       TextId::WapError, TextId::WapWarning, TextId::WapSuccess},
                                      u"No WAP media file has been selected. Select a WAP media file."_s,
                                      TextId::WapOpen,
                                      TextId::WapTooLarge,
                                      TextId::WapMemory,
                                      &GatewayLocation::maxFileSizeMobile,
                                      false,
                                      sendWap};
  switch (kind) {
    case FileKind::Fax:
      return fax;
    case FileKind::Mms:
      return mms;
    case FileKind::Wap:
      return wap;
  }
  Q_UNREACHABLE();
}

}  // namespace parlexo
