// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace parlexo::protocol {

/// What travels between client and gateway: for every operation a request record, named after the operation,
/// and a response record. Members have the names and the order of the wire, where the first letter tells the
/// type, so the misspellings are the service's own. The text of a request is bytes, one character each; that
/// of a response is UTF-8.

/// A file's content. The bytes are not owned: in a request to send they are the caller's, in a received one
/// the reader's.
struct BinaryData {
  const unsigned char* data = nullptr;
  std::int32_t length = 0;  ///< bytes
};

// Requests.

struct sessionStart {
  std::string sUser;
  std::string sPassword;
};

struct sessionEnd {
  std::string sSession;
};

struct sendSms {
  std::string sSession;
  std::string sMessage;
  bool bFlash = false;
  std::string sListPhoneNumbers;
};

struct getVersion {};

struct sendMms {
  std::string sSession;
  std::string sDescription;
  std::string sFileName;
  BinaryData oData;
  std::string sListPhoneNumbers;
};

struct sendFax {
  std::string sSession;
  std::string sFileName;
  BinaryData oData;
  std::string sListPhoneNumbers;
};

struct sendVoice_Text {
  std::string sSession;
  std::string sMessage;
  bool bPress1Key = false;
  bool bWaitForSilence = false;
  bool bAllowRepeat = false;
  std::string sListPhoneNumbers;
};

struct sendVoice_File {
  std::string sSession;
  std::string sFileName;
  BinaryData oData;
  bool bPress1Key = false;
  bool bWaitForSilence = false;
  bool bAllowRepeat = false;
  std::string sListPhoneNumbers;
};

struct getAccountBalance {
  std::string sSession;
};

struct getStatus {
  std::string sSession;
  std::string sReciept;
};

struct sendWap {
  std::string sSession;
  std::string sMessage;
  std::string sFileName;
  BinaryData oData;
  std::string sListPhoneNumbers;
};

struct scheduleMessageEnable {
  std::string sDateTimeGmt;
  std::string sSession;
};

struct scheduleMessageDisable {
  std::string sSession;
};

struct getNews {};

struct getAccountHistory {
  std::string sSession;
};

struct setAccountPassword {
  std::string sSession;
  std::string sOldPassword;
  std::string sNewPassword;
};

struct partnerAddUser {
  std::string sSession;
  std::string sUser;
  std::string sEmail;
};

struct partnerAddEvent {
  std::string sSession;
  std::string sUser;
  std::string sEventType;
  std::string sPackageType;
  double dAmount = 0;
  std::string sDescription;
};

struct partnerGetCostByCountry {
  std::string sSession;
  std::string sCountry;
  bool bMobileNumber = false;
  std::string sPackageType;
  std::string sCurrency;
  std::string sServiceType;
};

struct partnerGetCostByPhoneNumber {
  std::string sSession;
  std::string sPhoneNumber;
  std::string sPackageType;
  std::string sCurrency;
  std::string sServiceType;
};

struct partnerEditUser {
  std::string sSession;
  std::string sUser;
  std::string sEmail;
};

struct partnerEditEmailMessaging {
  std::string sSession;
  std::string sUser;
  bool bEmailEnable = false;
  std::string sEmailCode;
  bool bEmailFilter = false;
  std::string sEmailFilter1;
  std::string sEmailFilter2;
  std::string sEmailFilter3;
  bool bEmailSmsSplit = false;
  bool bEmailEndDoubleLine = false;
  bool bEmailEndStop = false;
};

struct partnerGetEmailMessaging {
  std::string sSession;
  std::string sUser;
};

struct getEmailMessaging {
  std::string sSession;
};

struct editEmailMessaging {
  std::string sSession;
  bool bEmailEnable = false;
  std::string sEmailCode;
  bool bEmailFilter = false;
  std::string sEmailFilter1;
  std::string sEmailFilter2;
  std::string sEmailFilter3;
  bool bEmailSmsSplit = false;
  bool bEmailEndStop = false;
  bool bEmailDoubleLine = false;
};

struct partnerStartSessionForSubUser {
  std::string sUser;
  std::string sPassword;
  std::string sSubUser;
};

struct partnerEndSessionForSubUser {
  std::string sSession;
};

struct setSmsSenderId {
  std::string sSession;
  std::string sSenderId;
};

// Responses. Their strings belong to the context that received them and are null where the field was
// absent or nil.

struct sessionStartResponse {
  const char* sSession = nullptr;
  std::int32_t nErrorCode = 0;
};

struct sessionEndResponse {
  std::int32_t nErrorCode = 0;
};

struct sendSmsResponse {
  const char* sListReciepts = nullptr;
  std::int32_t nErrorCode = 0;
};

struct getVersionResponse {
  std::int32_t nVersion = 0;
};

struct sendMmsResponse {
  const char* sListReciepts = nullptr;
  std::int32_t nErrorCode = 0;
};

struct sendFaxResponse {
  const char* sListReciepts = nullptr;
  std::int32_t nErrorCode = 0;
};

struct sendVoice_TextResponse {
  std::int32_t nErrorCode = 0;
  const char* sListReciepts = nullptr;
};

struct sendVoice_FileResponse {
  const char* sListReciepts = nullptr;
  std::int32_t nErrorCode = 0;
};

struct getAccountBalanceResponse {
  double dValue = 0;
  std::int32_t nErrorCode = 0;
};

struct getStatusResponse {
  std::int32_t nErrorCode = 0;
  const char* sStatus = nullptr;
};

struct sendWapResponse {
  const char* sListReciepts = nullptr;
  std::int32_t nErrorCode = 0;
};

struct scheduleMessageEnableResponse {
  std::int32_t nErrorCode = 0;
};

struct scheduleMessageDisableResponse {
  std::int32_t nErrorCode = 0;
};

struct getNewsResponse {
  const char* sNews = nullptr;
  std::int32_t nErrorCode = 0;
};

struct getAccountHistoryResponse {
  const char* sXmlAccountHistory = nullptr;
  std::int32_t nErrorCode = 0;
};

struct setAccountPasswordResponse {
  std::int32_t nErrorCode = 0;
};

struct partnerAddUserResponse {
  std::int32_t nErrorCode = 0;
};

struct partnerAddEventResponse {
  std::int32_t nErrorCode = 0;
};

struct partnerGetCostByCountryResponse {
  std::int32_t nErrorCode = 0;
  double dCostWholesaleFlat = 0;
  double dCostWholesalePerHalfMin = 0;
  double dCostResellerFlat = 0;
  double dCostResellerPerHalfMin = 0;
  const char* sNetworks = nullptr;
};

struct partnerGetCostByPhoneNumberResponse {
  std::int32_t nErrorCode = 0;
  double dCostWholesaleFlat = 0;
  double dCostWholesalePerHalfMin = 0;
  double dCostResellerFlat = 0;
  double dCostResellerPerHalfMin = 0;
  const char* sCountry = nullptr;
  const char* sNetworks = nullptr;
};

struct partnerEditUserResponse {
  std::int32_t nErrorCode = 0;
};

struct partnerEditEmailMessagingResponse {
  std::int32_t nErrorCode = 0;
};

struct partnerGetEmailMessagingResponse {
  bool bEmailEnable = false;
  const char* sEmailCode = nullptr;
  bool bEmailFilter = false;
  const char* sEmailFilter1 = nullptr;
  const char* sEmailFilter2 = nullptr;
  const char* sEmailFilter3 = nullptr;
  bool bEmailSmsSplit = false;
  bool bEmailEndDoubleLine = false;
  bool bEmailEndStop = false;
  std::int32_t nErrorCode = 0;
};

struct getEmailMessagingResponse {
  bool bEmailEnable = false;
  const char* sEmailCode = nullptr;
  bool bEmailFilter = false;
  const char* sEmailFilter1 = nullptr;
  const char* sEmailFilter2 = nullptr;
  const char* sEmailFilter3 = nullptr;
  bool bEmailSmsSplit = false;
  bool bEmailEndDoubleLine = false;
  bool bEmailEndStop = false;
  std::int32_t nErrorCode = 0;
};

struct editEmailMessagingResponse {
  std::int32_t nErrorCode = 0;
};

struct partnerStartSessionForSubUserResponse {
  const char* sSession = nullptr;
  std::int32_t nErrorCode = 0;
};

struct partnerEndSessionForSubUserResponse {
  std::int32_t nErrorCode = 0;
};

struct setSmsSenderIdResponse {
  std::int32_t nErrorCode = 0;
};

}  // namespace parlexo::protocol
