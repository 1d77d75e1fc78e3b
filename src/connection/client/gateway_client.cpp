// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/client/gateway_client.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include <stdsoap2.h>

#include "base/secret.h"
#include "protocol/client_call.h"
#include "protocol/contract.h"

namespace parlexo {

namespace {

void installProxy(struct ::soap& context, const GatewayAccess& access) {
  if (!access.proxyUser.empty() && !access.proxyPassword.empty()) {
    context.proxy_userid = access.proxyUser.c_str();
    context.proxy_passwd = access.proxyPassword.c_str();
  }
  if (!access.proxyHost.empty()) {
    context.proxy_host = access.proxyHost.c_str();
    context.proxy_port = access.proxyPort;
  }
}

/// Returns `total` times `part` / `whole`.
std::int64_t scale(std::int64_t total, std::size_t part, std::size_t whole) {
  return static_cast<std::int64_t>(static_cast<double>(total) * static_cast<double>(part) /
                                   static_cast<double>(whole));
}

}  // namespace

GatewayClient::GatewayClient(const GatewayAccess& access)
    : endpoint(access.endpoint.c_str()),
      patience_{.connect = access.timeouts.connect,
                .nextAddress = timeouts::nextAddress,
                .silence = access.timeouts.silence},
      whole_(access.timeouts.whole) {
  soap = protocol::newClientContext(patience_);
  if (soap) installProxy(*soap, access);
}

GatewayClient::~GatewayClient() {
  // The output buffer may contain a password.
  if (soap) wipe(std::as_writable_bytes(std::span(soap->buf)));
  protocol::freeContext(soap);
}

void GatewayClient::watch(const CancelFlag& cancel) {
  patience_.isCancelled = [cancel] { return cancel.isRaised(); };
}

void GatewayClient::setTransfer(const Transfer& transfer) {
  patience_.onSent = [this, transfer, sent = std::size_t{0}](std::size_t bytes) mutable {
    sent = std::min(sent + bytes, requestLength_);
    if (requestLength_ > 0) transfer.setDone(scale(transfer.total(), sent, requestLength_));
  };
}

template <class Request, class Response>
int GatewayClient::call(Request&& request, Response& response) {
  if (whole_) patience_.deadline = std::chrono::steady_clock::now() + *whole_;
  return protocol::call(soap, endpoint, request, response, &outcomeUnknown_, &requestLength_);
}

int GatewayClient::sessionStart(const std::string& sUser, const std::string& sPassword,
                                protocol::sessionStartResponse& response) {
  return call(protocol::sessionStart{sUser, sPassword}, response);
}

int GatewayClient::sessionEnd(const std::string& sSession, protocol::sessionEndResponse& response) {
  return call(protocol::sessionEnd{sSession}, response);
}

int GatewayClient::sendSms(const std::string& sSession, const std::string& sMessage, bool bFlash,
                           const std::string& sListPhoneNumbers, protocol::sendSmsResponse& response) {
  return call(protocol::sendSms{.sSession = sSession,
                                .sMessage = sMessage,
                                .bFlash = bFlash,
                                .sListPhoneNumbers = sListPhoneNumbers},
              response);
}

int GatewayClient::getVersion(protocol::getVersionResponse& response) {
  return call(protocol::getVersion{}, response);
}

int GatewayClient::sendMms(const std::string& sSession, const std::string& sDescription,
                           const std::string& sFileName, const protocol::BinaryData& oData,
                           const std::string& sListPhoneNumbers, protocol::sendMmsResponse& response) {
  return call(protocol::sendMms{.sSession = sSession,
                                .sDescription = sDescription,
                                .sFileName = sFileName,
                                .oData = oData,
                                .sListPhoneNumbers = sListPhoneNumbers},
              response);
}

int GatewayClient::sendFax(const std::string& sSession, const std::string& sFileName,
                           const protocol::BinaryData& oData, const std::string& sListPhoneNumbers,
                           protocol::sendFaxResponse& response) {
  return call(protocol::sendFax{.sSession = sSession,
                                .sFileName = sFileName,
                                .oData = oData,
                                .sListPhoneNumbers = sListPhoneNumbers},
              response);
}

int GatewayClient::sendVoice_Text(const std::string& sSession, const std::string& sMessage, bool bPress1Key,
                                  bool bWaitForSilence, bool bAllowRepeat,
                                  const std::string& sListPhoneNumbers,
                                  protocol::sendVoice_TextResponse& response) {
  return call(protocol::sendVoice_Text{.sSession = sSession,
                                       .sMessage = sMessage,
                                       .bPress1Key = bPress1Key,
                                       .bWaitForSilence = bWaitForSilence,
                                       .bAllowRepeat = bAllowRepeat,
                                       .sListPhoneNumbers = sListPhoneNumbers},
              response);
}

int GatewayClient::sendVoice_File(const std::string& sSession, const std::string& sFileName,
                                  const protocol::BinaryData& oData, bool bPress1Key, bool bWaitForSilence,
                                  bool bAllowRepeat, const std::string& sListPhoneNumbers,
                                  protocol::sendVoice_FileResponse& response) {
  return call(protocol::sendVoice_File{.sSession = sSession,
                                       .sFileName = sFileName,
                                       .oData = oData,
                                       .bPress1Key = bPress1Key,
                                       .bWaitForSilence = bWaitForSilence,
                                       .bAllowRepeat = bAllowRepeat,
                                       .sListPhoneNumbers = sListPhoneNumbers},
              response);
}

int GatewayClient::getAccountBalance(const std::string& sSession,
                                     protocol::getAccountBalanceResponse& response) {
  return call(protocol::getAccountBalance{sSession}, response);
}

int GatewayClient::getStatus(const std::string& sSession, const std::string& sReciept,
                             protocol::getStatusResponse& response) {
  return call(protocol::getStatus{sSession, sReciept}, response);
}

int GatewayClient::sendWap(const std::string& sSession, const std::string& sMessage,
                           const std::string& sFileName, const protocol::BinaryData& oData,
                           const std::string& sListPhoneNumbers, protocol::sendWapResponse& response) {
  return call(protocol::sendWap{.sSession = sSession,
                                .sMessage = sMessage,
                                .sFileName = sFileName,
                                .oData = oData,
                                .sListPhoneNumbers = sListPhoneNumbers},
              response);
}

int GatewayClient::scheduleMessageEnable(const std::string& sDateTimeGmt, const std::string& sSession,
                                         protocol::scheduleMessageEnableResponse& response) {
  return call(protocol::scheduleMessageEnable{sDateTimeGmt, sSession}, response);
}

int GatewayClient::scheduleMessageDisable(const std::string& sSession,
                                          protocol::scheduleMessageDisableResponse& response) {
  return call(protocol::scheduleMessageDisable{sSession}, response);
}

int GatewayClient::getNews(protocol::getNewsResponse& response) {
  return call(protocol::getNews{}, response);
}

int GatewayClient::getAccountHistory(const std::string& sSession,
                                     protocol::getAccountHistoryResponse& response) {
  return call(protocol::getAccountHistory{sSession}, response);
}

int GatewayClient::setAccountPassword(const std::string& sSession, const std::string& sOldPassword,
                                      const std::string& sNewPassword,
                                      protocol::setAccountPasswordResponse& response) {
  return call(protocol::setAccountPassword{sSession, sOldPassword, sNewPassword}, response);
}

int GatewayClient::partnerAddUser(const std::string& sSession, const std::string& sUser,
                                  const std::string& sEmail, protocol::partnerAddUserResponse& response) {
  return call(protocol::partnerAddUser{sSession, sUser, sEmail}, response);
}

int GatewayClient::partnerAddEvent(const std::string& sSession, const std::string& sUser,
                                   const std::string& sEventType, const std::string& sPackageType,
                                   double dAmount, const std::string& sDescription,
                                   protocol::partnerAddEventResponse& response) {
  return call(protocol::partnerAddEvent{.sSession = sSession,
                                        .sUser = sUser,
                                        .sEventType = sEventType,
                                        .sPackageType = sPackageType,
                                        .dAmount = dAmount,
                                        .sDescription = sDescription},
              response);
}

int GatewayClient::partnerGetCostByCountry(const std::string& sSession, const std::string& sCountry,
                                           bool bMobileNumber, const std::string& sPackageType,
                                           const std::string& sCurrency, const std::string& sServiceType,
                                           protocol::partnerGetCostByCountryResponse& response) {
  return call(protocol::partnerGetCostByCountry{.sSession = sSession,
                                                .sCountry = sCountry,
                                                .bMobileNumber = bMobileNumber,
                                                .sPackageType = sPackageType,
                                                .sCurrency = sCurrency,
                                                .sServiceType = sServiceType},
              response);
}

int GatewayClient::partnerGetCostByPhoneNumber(const std::string& sSession, const std::string& sPhoneNumber,
                                               const std::string& sPackageType, const std::string& sCurrency,
                                               const std::string& sServiceType,
                                               protocol::partnerGetCostByPhoneNumberResponse& response) {
  return call(protocol::partnerGetCostByPhoneNumber{.sSession = sSession,
                                                    .sPhoneNumber = sPhoneNumber,
                                                    .sPackageType = sPackageType,
                                                    .sCurrency = sCurrency,
                                                    .sServiceType = sServiceType},
              response);
}

int GatewayClient::partnerEditUser(const std::string& sSession, const std::string& sUser,
                                   const std::string& sEmail, protocol::partnerEditUserResponse& response) {
  return call(protocol::partnerEditUser{sSession, sUser, sEmail}, response);
}

int GatewayClient::partnerEditEmailMessaging(
    const std::string& sSession, const std::string& sUser, bool bEmailEnable, const std::string& sEmailCode,
    bool bEmailFilter, const std::string& sEmailFilter1, const std::string& sEmailFilter2,
    const std::string& sEmailFilter3, bool bEmailSmsSplit, protocol::StopsAtDoubleLine bEmailEndDoubleLine,
    protocol::StopsAtEndKeyword bEmailEndStop, protocol::partnerEditEmailMessagingResponse& response) {
  return call(protocol::partnerEditEmailMessaging{.sSession = sSession,
                                                  .sUser = sUser,
                                                  .bEmailEnable = bEmailEnable,
                                                  .sEmailCode = sEmailCode,
                                                  .bEmailFilter = bEmailFilter,
                                                  .sEmailFilter1 = sEmailFilter1,
                                                  .sEmailFilter2 = sEmailFilter2,
                                                  .sEmailFilter3 = sEmailFilter3,
                                                  .bEmailSmsSplit = bEmailSmsSplit,
                                                  .bEmailEndDoubleLine = bEmailEndDoubleLine,
                                                  .bEmailEndStop = bEmailEndStop},
              response);
}

int GatewayClient::partnerGetEmailMessaging(const std::string& sSession, const std::string& sUser,
                                            protocol::partnerGetEmailMessagingResponse& response) {
  return call(protocol::partnerGetEmailMessaging{sSession, sUser}, response);
}

int GatewayClient::getEmailMessaging(const std::string& sSession,
                                     protocol::getEmailMessagingResponse& response) {
  return call(protocol::getEmailMessaging{sSession}, response);
}

int GatewayClient::editEmailMessaging(const std::string& sSession, bool bEmailEnable,
                                      const std::string& sEmailCode, bool bEmailFilter,
                                      const std::string& sEmailFilter1, const std::string& sEmailFilter2,
                                      const std::string& sEmailFilter3, bool bEmailSmsSplit,
                                      protocol::StopsAtEndKeyword bEmailEndStop,
                                      protocol::StopsAtDoubleLine bEmailDoubleLine,
                                      protocol::editEmailMessagingResponse& response) {
  return call(protocol::editEmailMessaging{.sSession = sSession,
                                           .bEmailEnable = bEmailEnable,
                                           .sEmailCode = sEmailCode,
                                           .bEmailFilter = bEmailFilter,
                                           .sEmailFilter1 = sEmailFilter1,
                                           .sEmailFilter2 = sEmailFilter2,
                                           .sEmailFilter3 = sEmailFilter3,
                                           .bEmailSmsSplit = bEmailSmsSplit,
                                           .bEmailEndStop = bEmailEndStop,
                                           .bEmailDoubleLine = bEmailDoubleLine},
              response);
}

int GatewayClient::partnerStartSessionForSubUser(const std::string& sUser, const std::string& sPassword,
                                                 const std::string& sSubUser,
                                                 protocol::partnerStartSessionForSubUserResponse& response) {
  return call(protocol::partnerStartSessionForSubUser{sUser, sPassword, sSubUser}, response);
}

int GatewayClient::partnerEndSessionForSubUser(const std::string& sSession,
                                               protocol::partnerEndSessionForSubUserResponse& response) {
  return call(protocol::partnerEndSessionForSubUser{sSession}, response);
}

int GatewayClient::setSmsSenderId(const std::string& sSession, const std::string& sSenderId,
                                  protocol::setSmsSenderIdResponse& response) {
  return call(protocol::setSmsSenderId{sSession, sSenderId}, response);
}

}  // namespace parlexo
