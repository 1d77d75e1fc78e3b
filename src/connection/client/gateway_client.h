// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

#include "base/call_runner.h"
#include "base/progress.h"
#include "connection/client/gateway_access.h"
#include "protocol/records.h"
#include "protocol/soap_context.h"

namespace parlexo {

/// The gateway's operations as methods. A client is created for one call and owns that call's SOAP context,
/// in which the strings of the response live. Not thread-safe, except where noted.
class GatewayClient {
 public:
  /// Creates the context with the proxy and timeouts of `access`, which must outlive the client.
  explicit GatewayClient(const GatewayAccess& access);
  virtual ~GatewayClient();
  GatewayClient(const GatewayClient&) = delete;
  GatewayClient& operator=(const GatewayClient&) = delete;

  /// Makes calls poll `cancel`: raising it ends a call within about 100 ms with an error.
  void watch(const CancelFlag& cancel);

  /// Makes calls update `transfer`, on their thread. The share of the request that has been sent counts as
  /// the share of the file.
  void setTransfer(const Transfer& transfer);

  /// Whether the whole request was sent and no readable reply has come: the gateway may have carried it out.
  /// Thread-safe, also during a call.
  [[nodiscard]] bool outcomeUnknown() const { return outcomeUnknown_; }

  // One method per operation, in the contract's order. The parameters are the fields of the request, then the
  // response. Each method blocks and returns the runtime's result: 0 if a well-formed response was read, 16
  // if there is no context and nothing was sent, otherwise an error (listed in docs/gateway-protocol.md). On
  // error the response has its default values.
  virtual int sessionStart(const std::string& sUser, const std::string& sPassword,
                           protocol::sessionStartResponse& response);
  virtual int sessionEnd(const std::string& sSession, protocol::sessionEndResponse& response);
  virtual int sendSms(const std::string& sSession, const std::string& sMessage, bool bFlash,
                      const std::string& sListPhoneNumbers, protocol::sendSmsResponse& response);
  virtual int getVersion(protocol::getVersionResponse& response);
  virtual int sendMms(const std::string& sSession, const std::string& sDescription,
                      const std::string& sFileName, const protocol::BinaryData& oData,
                      const std::string& sListPhoneNumbers, protocol::sendMmsResponse& response);
  virtual int sendFax(const std::string& sSession, const std::string& sFileName,
                      const protocol::BinaryData& oData, const std::string& sListPhoneNumbers,
                      protocol::sendFaxResponse& response);
  virtual int sendVoice_Text(const std::string& sSession, const std::string& sMessage, bool bPress1Key,
                             bool bWaitForSilence, bool bAllowRepeat, const std::string& sListPhoneNumbers,
                             protocol::sendVoice_TextResponse& response);
  virtual int sendVoice_File(const std::string& sSession, const std::string& sFileName,
                             const protocol::BinaryData& oData, bool bPress1Key, bool bWaitForSilence,
                             bool bAllowRepeat, const std::string& sListPhoneNumbers,
                             protocol::sendVoice_FileResponse& response);
  virtual int getAccountBalance(const std::string& sSession, protocol::getAccountBalanceResponse& response);
  virtual int getStatus(const std::string& sSession, const std::string& sReciept,
                        protocol::getStatusResponse& response);
  virtual int sendWap(const std::string& sSession, const std::string& sMessage, const std::string& sFileName,
                      const protocol::BinaryData& oData, const std::string& sListPhoneNumbers,
                      protocol::sendWapResponse& response);
  virtual int scheduleMessageEnable(const std::string& sDateTimeGmt, const std::string& sSession,
                                    protocol::scheduleMessageEnableResponse& response);
  virtual int scheduleMessageDisable(const std::string& sSession,
                                     protocol::scheduleMessageDisableResponse& response);
  virtual int getNews(protocol::getNewsResponse& response);
  virtual int getAccountHistory(const std::string& sSession, protocol::getAccountHistoryResponse& response);
  virtual int setAccountPassword(const std::string& sSession, const std::string& sOldPassword,
                                 const std::string& sNewPassword,
                                 protocol::setAccountPasswordResponse& response);
  virtual int partnerAddUser(const std::string& sSession, const std::string& sUser, const std::string& sEmail,
                             protocol::partnerAddUserResponse& response);
  virtual int partnerAddEvent(const std::string& sSession, const std::string& sUser,
                              const std::string& sEventType, const std::string& sPackageType, double dAmount,
                              const std::string& sDescription, protocol::partnerAddEventResponse& response);
  virtual int partnerGetCostByCountry(const std::string& sSession, const std::string& sCountry,
                                      bool bMobileNumber, const std::string& sPackageType,
                                      const std::string& sCurrency, const std::string& sServiceType,
                                      protocol::partnerGetCostByCountryResponse& response);
  virtual int partnerGetCostByPhoneNumber(const std::string& sSession, const std::string& sPhoneNumber,
                                          const std::string& sPackageType, const std::string& sCurrency,
                                          const std::string& sServiceType,
                                          protocol::partnerGetCostByPhoneNumberResponse& response);
  virtual int partnerEditUser(const std::string& sSession, const std::string& sUser,
                              const std::string& sEmail, protocol::partnerEditUserResponse& response);
  virtual int partnerEditEmailMessaging(const std::string& sSession, const std::string& sUser,
                                        bool bEmailEnable, const std::string& sEmailCode, bool bEmailFilter,
                                        const std::string& sEmailFilter1, const std::string& sEmailFilter2,
                                        const std::string& sEmailFilter3, bool bEmailSmsSplit,
                                        protocol::StopsAtDoubleLine bEmailEndDoubleLine,
                                        protocol::StopsAtEndKeyword bEmailEndStop,
                                        protocol::partnerEditEmailMessagingResponse& response);
  virtual int partnerGetEmailMessaging(const std::string& sSession, const std::string& sUser,
                                       protocol::partnerGetEmailMessagingResponse& response);
  virtual int getEmailMessaging(const std::string& sSession, protocol::getEmailMessagingResponse& response);
  virtual int editEmailMessaging(const std::string& sSession, bool bEmailEnable,
                                 const std::string& sEmailCode, bool bEmailFilter,
                                 const std::string& sEmailFilter1, const std::string& sEmailFilter2,
                                 const std::string& sEmailFilter3, bool bEmailSmsSplit,
                                 protocol::StopsAtEndKeyword bEmailEndStop,
                                 protocol::StopsAtDoubleLine bEmailDoubleLine,
                                 protocol::editEmailMessagingResponse& response);
  virtual int partnerStartSessionForSubUser(const std::string& sUser, const std::string& sPassword,
                                            const std::string& sSubUser,
                                            protocol::partnerStartSessionForSubUserResponse& response);
  virtual int partnerEndSessionForSubUser(const std::string& sSession,
                                          protocol::partnerEndSessionForSubUserResponse& response);
  virtual int setSmsSenderId(const std::string& sSession, const std::string& sSenderId,
                             protocol::setSmsSenderIdResponse& response);

  struct ::soap* soap = nullptr;   ///< the context, owned; null if out of memory
  const char* endpoint = nullptr;  ///< the address of the gateway, not owned

 private:
  template <class Request, class Response>
  [[nodiscard]] int call(Request&& request, Response& response);

  protocol::IoPatience patience_;
  std::optional<std::chrono::milliseconds> whole_;
  std::atomic<bool> outcomeUnknown_ = false;
  std::size_t requestLength_ = 0;
};

}  // namespace parlexo
