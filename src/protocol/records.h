// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace parlexo::protocol {

/// What travels between client and gateway: a request and a response record for each operation. The names of
/// the records and their members are those of the wire, misspellings included; the first letter of a member
/// gives its type. Text in requests is encoded in the code page, one character per byte; text in responses is
/// UTF-8. Operations whose records have the same members share a template, whose parameter only makes each
/// record a distinct type.

/// The content of a file. Does not own the bytes: the caller owns those of a request that is sent, the reader
/// those of a request that was received.
struct BinaryData {
  const unsigned char* data = nullptr;
  std::int32_t length = 0;  ///< bytes
};

/// A password in a request. Overwrites its memory before it is destroyed or assigned.
class SecretText {
 public:
  SecretText() = default;
  SecretText(const std::string& password) : text(password) {}
  SecretText(const SecretText&) = default;
  SecretText& operator=(const SecretText& other) {
    if (this != &other) {
      wipe();
      text = other.text;
    }
    return *this;
  }
  ~SecretText() { wipe(); }

  operator const std::string&() const { return text; }

  std::string text;

 private:
  void wipe() {
    volatile char* const characters = text.data();
    for (std::size_t i = 0; i < text.size(); ++i) characters[i] = '\0';
  }
};

/// A boolean with a distinct type. Two operations have the flags below in opposite order; distinct types
/// turn a swap into a compile error.
template <class Tag>
class Flag {
 public:
  Flag() = default;
  explicit Flag(bool isSet) : value(isSet) {}
  operator bool() const { return value; }

  bool value = false;
};
using StopsAtEndKeyword = Flag<struct StopsAtEndKeywordTag>;
using StopsAtDoubleLine = Flag<struct StopsAtDoubleLineTag>;

// Requests.

template <class Tag>
struct EmptyRequest {};
using getVersion = EmptyRequest<struct getVersionTag>;
using getNews = EmptyRequest<struct getNewsTag>;

template <class Tag>
struct SessionRequest {
  std::string sSession;
};
using sessionEnd = SessionRequest<struct sessionEndTag>;
using getAccountBalance = SessionRequest<struct getAccountBalanceTag>;
using scheduleMessageDisable = SessionRequest<struct scheduleMessageDisableTag>;
using getAccountHistory = SessionRequest<struct getAccountHistoryTag>;
using getEmailMessaging = SessionRequest<struct getEmailMessagingTag>;
using partnerEndSessionForSubUser = SessionRequest<struct partnerEndSessionForSubUserTag>;

template <class Tag>
struct UserRequest {
  std::string sSession;
  std::string sUser;
  std::string sEmail;
};
using partnerAddUser = UserRequest<struct partnerAddUserTag>;
using partnerEditUser = UserRequest<struct partnerEditUserTag>;

struct sessionStart {
  std::string sUser;
  SecretText sPassword;
};

struct sendSms {
  std::string sSession;
  std::string sMessage;
  bool bFlash = false;
  std::string sListPhoneNumbers;
};

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

struct setAccountPassword {
  std::string sSession;
  SecretText sOldPassword;
  SecretText sNewPassword;
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
  StopsAtDoubleLine bEmailEndDoubleLine;
  StopsAtEndKeyword bEmailEndStop;
};

struct partnerGetEmailMessaging {
  std::string sSession;
  std::string sUser;
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
  StopsAtEndKeyword bEmailEndStop;
  StopsAtDoubleLine bEmailDoubleLine;
};

struct partnerStartSessionForSubUser {
  std::string sUser;
  SecretText sPassword;
  std::string sSubUser;
};

struct setSmsSenderId {
  std::string sSession;
  std::string sSenderId;
};

// Responses. The context that received them owns their strings, which are null where the field was absent or
// nil.

template <class Request>
struct CodeResponse {
  std::int32_t nErrorCode = 0;
};
using sessionEndResponse = CodeResponse<sessionEnd>;
using scheduleMessageEnableResponse = CodeResponse<scheduleMessageEnable>;
using scheduleMessageDisableResponse = CodeResponse<scheduleMessageDisable>;
using setAccountPasswordResponse = CodeResponse<setAccountPassword>;
using partnerAddUserResponse = CodeResponse<partnerAddUser>;
using partnerAddEventResponse = CodeResponse<partnerAddEvent>;
using partnerEditUserResponse = CodeResponse<partnerEditUser>;
using partnerEditEmailMessagingResponse = CodeResponse<partnerEditEmailMessaging>;
using editEmailMessagingResponse = CodeResponse<editEmailMessaging>;
using partnerEndSessionForSubUserResponse = CodeResponse<partnerEndSessionForSubUser>;
using setSmsSenderIdResponse = CodeResponse<setSmsSenderId>;

template <class Request>
struct SessionResponse {
  const char* sSession = nullptr;
  std::int32_t nErrorCode = 0;
};
using sessionStartResponse = SessionResponse<sessionStart>;
using partnerStartSessionForSubUserResponse = SessionResponse<partnerStartSessionForSubUser>;

template <class Request>
struct ReceiptsResponse {
  const char* sListReciepts = nullptr;
  std::int32_t nErrorCode = 0;
};
using sendSmsResponse = ReceiptsResponse<sendSms>;
using sendMmsResponse = ReceiptsResponse<sendMms>;
using sendFaxResponse = ReceiptsResponse<sendFax>;
using sendVoice_TextResponse = ReceiptsResponse<sendVoice_Text>;
using sendVoice_FileResponse = ReceiptsResponse<sendVoice_File>;
using sendWapResponse = ReceiptsResponse<sendWap>;

template <class Request>
struct EmailMessagingResponse {
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
using partnerGetEmailMessagingResponse = EmailMessagingResponse<partnerGetEmailMessaging>;
using getEmailMessagingResponse = EmailMessagingResponse<getEmailMessaging>;

struct getVersionResponse {
  std::int32_t nVersion = 0;
};

struct getAccountBalanceResponse {
  double dValue = 0;
  std::int32_t nErrorCode = 0;
};

struct getStatusResponse {
  std::int32_t nErrorCode = 0;
  const char* sStatus = nullptr;
};

struct getNewsResponse {
  const char* sNews = nullptr;
  std::int32_t nErrorCode = 0;
};

struct getAccountHistoryResponse {
  const char* sXmlAccountHistory = nullptr;
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

}  // namespace parlexo::protocol
