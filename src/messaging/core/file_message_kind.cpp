#include "messaging/core/file_message_kind.h"

namespace parlexo {

using namespace Qt::StringLiterals;

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
