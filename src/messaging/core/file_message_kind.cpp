#include "messaging/core/file_message_kind.h"

namespace parlexo {
namespace {

template <class Response>
SendReply callWithFile(const Gateway& gateway, const FileParcel& parcel,
                       int (*operation)(GatewayClient&, const FileParcel&, Response&)) {
  const auto reply = gateway.call<Response>([parcel, operation](GatewayClient& client, Response& response) {
    client.follow(parcel.transfer);
    return operation(client, parcel, response);
  });
  return {reply.answered(), reply->nErrorCode, fromWire(reply->sListReciepts), reply.leftInTheDark()};
}

SendReply sendFax(const Gateway& gateway, const FileParcel& parcel) {
  return callWithFile<protocol::sendFaxResponse>(
      gateway, parcel, [](GatewayClient& client, const FileParcel& fax, protocol::sendFaxResponse& response) {
        return client.sendFax(fax.session, fax.fileName, fax.data(), fax.numbers, response);
      });
}

SendReply sendMms(const Gateway& gateway, const FileParcel& parcel) {
  return callWithFile<protocol::sendMmsResponse>(
      gateway, parcel, [](GatewayClient& client, const FileParcel& mms, protocol::sendMmsResponse& response) {
        return client.sendMms(mms.session, mms.note, mms.fileName, mms.data(), mms.numbers, response);
      });
}

SendReply sendWap(const Gateway& gateway, const FileParcel& parcel) {
  return callWithFile<protocol::sendWapResponse>(
      gateway, parcel, [](GatewayClient& client, const FileParcel& wap, protocol::sendWapResponse& response) {
        return client.sendWap(wap.session, wap.note, wap.fileName, wap.data(), wap.numbers, response);
      });
}

}  // namespace

const FileMessageKind& fileMessageKind(FileKind kind) {
  static const FileMessageKind fax = {{QStringLiteral("Fax"), SenderIdUse::Set, TextId::FaxTransport,
                                       TextId::FaxError, TextId::FaxWarning, TextId::FaxSuccess},
                                      QStringLiteral("No fax file has been selected. Select a fax file."),
                                      TextId::FaxOpen,
                                      TextId::FaxTooLarge,
                                      TextId::FaxMemory,
                                      &GatewayLocation::maxFileSize,
                                      false,
                                      sendFax};
  static const FileMessageKind mms = {
      {QStringLiteral("MMS"), SenderIdUse::Set, TextId::GatewayUnreachable, TextId::MmsError,
       TextId::MmsWarning, TextId::MmsSuccess},
      QStringLiteral("No MMS media file has been selected. Select a MMS media file."),
      TextId::MmsOpen,
      TextId::MmsTooLarge,
      TextId::MmsMemory,
      &GatewayLocation::maxFileSizeMobile,
      true,
      sendMms};
  static const FileMessageKind wap = {
      {QStringLiteral("WAP"), SenderIdUse::Leave, TextId::GatewayUnreachable, TextId::WapError,
       TextId::WapWarning, TextId::WapSuccess},
      QStringLiteral("No WAP media file has been selected. Select a WAP media file."),
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
