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

/// Result of every call of a client without a context.
constexpr int noContext = 16;

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

/// What `part` of `whole` makes of `total`.
std::int64_t shareOf(std::int64_t total, std::size_t part, std::size_t whole) {
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
  // The request may have held a password.
  if (soap) wipe(std::as_writable_bytes(std::span(soap->buf)));
  protocol::freeContext(soap);
}

void GatewayClient::watch(const CancelFlag& cancel) {
  patience_.isCancelled = [cancel] { return cancel.isRaised(); };
}

void GatewayClient::follow(const Transfer& transfer) {
  patience_.onSent = [this, transfer, sent = std::size_t{0}](std::size_t bytes) mutable {
    sent = std::min(sent + bytes, requestLength_);
    if (requestLength_ > 0) transfer.setDone(shareOf(transfer.total(), sent, requestLength_));
  };
}

template <class Request, class Response>
int GatewayClient::call(Request&& request, Response& response) {
  response = Response{};
  if (!soap) return noContext;
  if (whole_) patience_.deadline = std::chrono::steady_clock::now() + *whole_;
  return protocol::call(soap, endpoint, request, response, &outcomeUnknown_, &requestLength_);
}

int GatewayClient::sessionStart(const std::string& sUser, const std::string& sPassword,
                                protocol::sessionStartResponse& response) {
  protocol::sessionStart request{sUser, sPassword};
  const int result = call(request, response);
  wipe(request.sPassword);
  return result;
}

int GatewayClient::sessionEnd(const std::string& sSession, protocol::sessionEndResponse& response) {
  return call(protocol::sessionEnd{sSession}, response);
}

int GatewayClient::sendSms(const std::string& sSession, const std::string& sMessage, bool bFlash,
                           const std::string& sListPhoneNumbers, protocol::sendSmsResponse& response) {
  return call(protocol::sendSms{sSession, sMessage, bFlash, sListPhoneNumbers}, response);
}

int GatewayClient::getVersion(protocol::getVersionResponse& response) {
  return call(protocol::getVersion{}, response);
}

int GatewayClient::sendMms(const std::string& sSession, const std::string& sDescription,
                           const std::string& sFileName, const protocol::BinaryData& oData,
                           const std::string& sListPhoneNumbers, protocol::sendMmsResponse& response) {
  return call(protocol::sendMms{sSession, sDescription, sFileName, oData, sListPhoneNumbers}, response);
}

int GatewayClient::sendFax(const std::string& sSession, const std::string& sFileName,
                           const protocol::BinaryData& oData, const std::string& sListPhoneNumbers,
                           protocol::sendFaxResponse& response) {
  return call(protocol::sendFax{sSession, sFileName, oData, sListPhoneNumbers}, response);
}

int GatewayClient::sendVoice_Text(const std::string& sSession, const std::string& sMessage, bool bPress1Key,
                                  bool bWaitForSilence, bool bAllowRepeat,
                                  const std::string& sListPhoneNumbers,
                                  protocol::sendVoice_TextResponse& response) {
  return call(protocol::sendVoice_Text{sSession, sMessage, bPress1Key, bWaitForSilence, bAllowRepeat,
                                       sListPhoneNumbers},
              response);
}

int GatewayClient::sendVoice_File(const std::string& sSession, const std::string& sFileName,
                                  const protocol::BinaryData& oData, bool bPress1Key, bool bWaitForSilence,
                                  bool bAllowRepeat, const std::string& sListPhoneNumbers,
                                  protocol::sendVoice_FileResponse& response) {
  return call(protocol::sendVoice_File{sSession, sFileName, oData, bPress1Key, bWaitForSilence, bAllowRepeat,
                                       sListPhoneNumbers},
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
  return call(protocol::sendWap{sSession, sMessage, sFileName, oData, sListPhoneNumbers}, response);
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
  protocol::setAccountPassword request{sSession, sOldPassword, sNewPassword};
  const int result = call(request, response);
  wipe(request.sOldPassword);
  wipe(request.sNewPassword);
  return result;
}

int GatewayClient::partnerAddUser(const std::string& sSession, const std::string& sUser,
                                  const std::string& sEmail, protocol::partnerAddUserResponse& response) {
  return call(protocol::partnerAddUser{sSession, sUser, sEmail}, response);
}

int GatewayClient::partnerAddEvent(const std::string& sSession, const std::string& sUser,
                                   const std::string& sEventType, const std::string& sPackageType,
                                   double dAmount, const std::string& sDescription,
                                   protocol::partnerAddEventResponse& response) {
  return call(protocol::partnerAddEvent{sSession, sUser, sEventType, sPackageType, dAmount, sDescription},
              response);
}

int GatewayClient::partnerGetCostByCountry(const std::string& sSession, const std::string& sCountry,
                                           bool bMobileNumber, const std::string& sPackageType,
                                           const std::string& sCurrency, const std::string& sServiceType,
                                           protocol::partnerGetCostByCountryResponse& response) {
  return call(protocol::partnerGetCostByCountry{sSession, sCountry, bMobileNumber, sPackageType, sCurrency,
                                                sServiceType},
              response);
}

int GatewayClient::partnerGetCostByPhoneNumber(const std::string& sSession, const std::string& sPhoneNumber,
                                               const std::string& sPackageType, const std::string& sCurrency,
                                               const std::string& sServiceType,
                                               protocol::partnerGetCostByPhoneNumberResponse& response) {
  return call(
      protocol::partnerGetCostByPhoneNumber{sSession, sPhoneNumber, sPackageType, sCurrency, sServiceType},
      response);
}

int GatewayClient::partnerEditUser(const std::string& sSession, const std::string& sUser,
                                   const std::string& sEmail, protocol::partnerEditUserResponse& response) {
  return call(protocol::partnerEditUser{sSession, sUser, sEmail}, response);
}

int GatewayClient::partnerEditEmailMessaging(const std::string& sSession, const std::string& sUser,
                                             bool bEmailEnable, const std::string& sEmailCode,
                                             bool bEmailFilter, const std::string& sEmailFilter1,
                                             const std::string& sEmailFilter2,
                                             const std::string& sEmailFilter3, bool bEmailSmsSplit,
                                             bool bEmailEndDoubleLine, bool bEmailEndStop,
                                             protocol::partnerEditEmailMessagingResponse& response) {
  return call(protocol::partnerEditEmailMessaging{sSession, sUser, bEmailEnable, sEmailCode, bEmailFilter,
                                                  sEmailFilter1, sEmailFilter2, sEmailFilter3, bEmailSmsSplit,
                                                  bEmailEndDoubleLine, bEmailEndStop},
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
                                      bool bEmailEndStop, bool bEmailDoubleLine,
                                      protocol::editEmailMessagingResponse& response) {
  return call(protocol::editEmailMessaging{sSession, bEmailEnable, sEmailCode, bEmailFilter, sEmailFilter1,
                                           sEmailFilter2, sEmailFilter3, bEmailSmsSplit, bEmailEndStop,
                                           bEmailDoubleLine},
              response);
}

int GatewayClient::partnerStartSessionForSubUser(const std::string& sUser, const std::string& sPassword,
                                                 const std::string& sSubUser,
                                                 protocol::partnerStartSessionForSubUserResponse& response) {
  protocol::partnerStartSessionForSubUser request{sUser, sPassword, sSubUser};
  const int result = call(request, response);
  wipe(request.sPassword);
  return result;
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
