// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <tuple>
#include <type_traits>

#include "protocol/fields.h"
#include "protocol/records.h"

namespace parlexo::protocol {

/// An operation of the gateway: its name on the wire, its two records and their fields in wire order. The
/// request element has the operation's name, the response element that name with "Response" appended.
template <class RequestRecord, class ResponseRecord, class RequestFields, class ResponseFields>
struct Operation {
  using Request = RequestRecord;
  using Response = ResponseRecord;

  std::string_view name;
  RequestFields requestFields;
  ResponseFields responseFields;

  [[nodiscard]] Fields fields(Request& request) const { return requestFields(request); }
  [[nodiscard]] Fields fields(Response& response) const { return responseFields(response); }
};

template <class Request, class Response, class RequestFields, class ResponseFields>
constexpr auto operation(std::string_view name, RequestFields request, ResponseFields response) {
  return Operation<Request, Response, RequestFields, ResponseFields>{name, request, response};
}

/// The contract with the gateway, in the order in which the service defines it. This is the only place that
/// names the fields of the wire. Names, order and spelling are the service's, irregularities included: the
/// schedule has its time before the session, some responses start with their code, and editEmailMessaging has
/// another name and position for the double-line flag.
// clang-format off
inline constexpr std::tuple operations{
    operation<sessionStart, sessionStartResponse>(
        "sessionStart",
        [](auto& q) { return Fields{{"sUser", q.sUser}, {"sPassword", q.sPassword}}; },
        [](auto& a) { return Fields{{"sSession", a.sSession}, {"nErrorCode", a.nErrorCode}}; }),
    operation<sessionEnd, sessionEndResponse>(
        "sessionEnd",
        [](auto& q) { return Fields{{"sSession", q.sSession}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}}; }),
    operation<sendSms, sendSmsResponse>(
        "sendSms",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sMessage", q.sMessage}, {"bFlash", q.bFlash},
                                    {"sListPhoneNumbers", q.sListPhoneNumbers}}; },
        [](auto& a) { return Fields{{"sListReciepts", a.sListReciepts}, {"nErrorCode", a.nErrorCode}}; }),
    operation<getVersion, getVersionResponse>(
        "getVersion",
        [](auto&) { return Fields{}; },
        [](auto& a) { return Fields{{"nVersion", a.nVersion}}; }),
    operation<sendMms, sendMmsResponse>(
        "sendMms",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sDescription", q.sDescription},
                                    {"sFileName", q.sFileName}, {"oData", q.oData},
                                    {"sListPhoneNumbers", q.sListPhoneNumbers}}; },
        [](auto& a) { return Fields{{"sListReciepts", a.sListReciepts}, {"nErrorCode", a.nErrorCode}}; }),
    operation<sendFax, sendFaxResponse>(
        "sendFax",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sFileName", q.sFileName}, {"oData", q.oData},
                                    {"sListPhoneNumbers", q.sListPhoneNumbers}}; },
        [](auto& a) { return Fields{{"sListReciepts", a.sListReciepts}, {"nErrorCode", a.nErrorCode}}; }),
    operation<sendVoice_Text, sendVoice_TextResponse>(
        "sendVoice_Text",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sMessage", q.sMessage},
                                    {"bPress1Key", q.bPress1Key}, {"bWaitForSilence", q.bWaitForSilence},
                                    {"bAllowRepeat", q.bAllowRepeat},
                                    {"sListPhoneNumbers", q.sListPhoneNumbers}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}, {"sListReciepts", a.sListReciepts}}; }),
    operation<sendVoice_File, sendVoice_FileResponse>(
        "sendVoice_File",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sFileName", q.sFileName}, {"oData", q.oData},
                                    {"bPress1Key", q.bPress1Key}, {"bWaitForSilence", q.bWaitForSilence},
                                    {"bAllowRepeat", q.bAllowRepeat},
                                    {"sListPhoneNumbers", q.sListPhoneNumbers}}; },
        [](auto& a) { return Fields{{"sListReciepts", a.sListReciepts}, {"nErrorCode", a.nErrorCode}}; }),
    operation<getAccountBalance, getAccountBalanceResponse>(
        "getAccountBalance",
        [](auto& q) { return Fields{{"sSession", q.sSession}}; },
        [](auto& a) { return Fields{{"dValue", a.dValue}, {"nErrorCode", a.nErrorCode}}; }),
    operation<getStatus, getStatusResponse>(
        "getStatus",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sReciept", q.sReciept}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}, {"sStatus", a.sStatus}}; }),
    operation<sendWap, sendWapResponse>(
        "sendWap",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sMessage", q.sMessage},
                                    {"sFileName", q.sFileName}, {"oData", q.oData},
                                    {"sListPhoneNumbers", q.sListPhoneNumbers}}; },
        [](auto& a) { return Fields{{"sListReciepts", a.sListReciepts}, {"nErrorCode", a.nErrorCode}}; }),
    operation<scheduleMessageEnable, scheduleMessageEnableResponse>(
        "scheduleMessageEnable",
        [](auto& q) { return Fields{{"sDateTimeGmt", q.sDateTimeGmt}, {"sSession", q.sSession}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}}; }),
    operation<scheduleMessageDisable, scheduleMessageDisableResponse>(
        "scheduleMessageDisable",
        [](auto& q) { return Fields{{"sSession", q.sSession}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}}; }),
    operation<getNews, getNewsResponse>(
        "getNews",
        [](auto&) { return Fields{}; },
        [](auto& a) { return Fields{{"sNews", a.sNews}, {"nErrorCode", a.nErrorCode}}; }),
    operation<getAccountHistory, getAccountHistoryResponse>(
        "getAccountHistory",
        [](auto& q) { return Fields{{"sSession", q.sSession}}; },
        [](auto& a) { return Fields{{"sXmlAccountHistory", a.sXmlAccountHistory},
                                    {"nErrorCode", a.nErrorCode}}; }),
    operation<setAccountPassword, setAccountPasswordResponse>(
        "setAccountPassword",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sOldPassword", q.sOldPassword},
                                    {"sNewPassword", q.sNewPassword}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}}; }),
    operation<partnerAddUser, partnerAddUserResponse>(
        "partnerAddUser",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sUser", q.sUser}, {"sEmail", q.sEmail}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}}; }),
    operation<partnerAddEvent, partnerAddEventResponse>(
        "partnerAddEvent",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sUser", q.sUser},
                                    {"sEventType", q.sEventType}, {"sPackageType", q.sPackageType},
                                    {"dAmount", q.dAmount}, {"sDescription", q.sDescription}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}}; }),
    operation<partnerGetCostByCountry, partnerGetCostByCountryResponse>(
        "partnerGetCostByCountry",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sCountry", q.sCountry},
                                    {"bMobileNumber", q.bMobileNumber}, {"sPackageType", q.sPackageType},
                                    {"sCurrency", q.sCurrency}, {"sServiceType", q.sServiceType}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode},
                                    {"dCostWholesaleFlat", a.dCostWholesaleFlat},
                                    {"dCostWholesalePerHalfMin", a.dCostWholesalePerHalfMin},
                                    {"dCostResellerFlat", a.dCostResellerFlat},
                                    {"dCostResellerPerHalfMin", a.dCostResellerPerHalfMin},
                                    {"sNetworks", a.sNetworks}}; }),
    operation<partnerGetCostByPhoneNumber, partnerGetCostByPhoneNumberResponse>(
        "partnerGetCostByPhoneNumber",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sPhoneNumber", q.sPhoneNumber},
                                    {"sPackageType", q.sPackageType}, {"sCurrency", q.sCurrency},
                                    {"sServiceType", q.sServiceType}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode},
                                    {"dCostWholesaleFlat", a.dCostWholesaleFlat},
                                    {"dCostWholesalePerHalfMin", a.dCostWholesalePerHalfMin},
                                    {"dCostResellerFlat", a.dCostResellerFlat},
                                    {"dCostResellerPerHalfMin", a.dCostResellerPerHalfMin},
                                    {"sCountry", a.sCountry}, {"sNetworks", a.sNetworks}}; }),
    operation<partnerEditUser, partnerEditUserResponse>(
        "partnerEditUser",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sUser", q.sUser}, {"sEmail", q.sEmail}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}}; }),
    operation<partnerEditEmailMessaging, partnerEditEmailMessagingResponse>(
        "partnerEditEmailMessaging",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sUser", q.sUser},
                                    {"bEmailEnable", q.bEmailEnable}, {"sEmailCode", q.sEmailCode},
                                    {"bEmailFilter", q.bEmailFilter}, {"sEmailFilter1", q.sEmailFilter1},
                                    {"sEmailFilter2", q.sEmailFilter2}, {"sEmailFilter3", q.sEmailFilter3},
                                    {"bEmailSmsSplit", q.bEmailSmsSplit},
                                    {"bEmailEndDoubleLine", q.bEmailEndDoubleLine},
                                    {"bEmailEndStop", q.bEmailEndStop}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}}; }),
    operation<partnerGetEmailMessaging, partnerGetEmailMessagingResponse>(
        "partnerGetEmailMessaging",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sUser", q.sUser}}; },
        [](auto& a) { return Fields{{"bEmailEnable", a.bEmailEnable}, {"sEmailCode", a.sEmailCode},
                                    {"bEmailFilter", a.bEmailFilter}, {"sEmailFilter1", a.sEmailFilter1},
                                    {"sEmailFilter2", a.sEmailFilter2}, {"sEmailFilter3", a.sEmailFilter3},
                                    {"bEmailSmsSplit", a.bEmailSmsSplit},
                                    {"bEmailEndDoubleLine", a.bEmailEndDoubleLine},
                                    {"bEmailEndStop", a.bEmailEndStop}, {"nErrorCode", a.nErrorCode}}; }),
    operation<getEmailMessaging, getEmailMessagingResponse>(
        "getEmailMessaging",
        [](auto& q) { return Fields{{"sSession", q.sSession}}; },
        [](auto& a) { return Fields{{"bEmailEnable", a.bEmailEnable}, {"sEmailCode", a.sEmailCode},
                                    {"bEmailFilter", a.bEmailFilter}, {"sEmailFilter1", a.sEmailFilter1},
                                    {"sEmailFilter2", a.sEmailFilter2}, {"sEmailFilter3", a.sEmailFilter3},
                                    {"bEmailSmsSplit", a.bEmailSmsSplit},
                                    {"bEmailEndDoubleLine", a.bEmailEndDoubleLine},
                                    {"bEmailEndStop", a.bEmailEndStop}, {"nErrorCode", a.nErrorCode}}; }),
    operation<editEmailMessaging, editEmailMessagingResponse>(
        "editEmailMessaging",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"bEmailEnable", q.bEmailEnable},
                                    {"sEmailCode", q.sEmailCode}, {"bEmailFilter", q.bEmailFilter},
                                    {"sEmailFilter1", q.sEmailFilter1}, {"sEmailFilter2", q.sEmailFilter2},
                                    {"sEmailFilter3", q.sEmailFilter3}, {"bEmailSmsSplit", q.bEmailSmsSplit},
                                    {"bEmailEndStop", q.bEmailEndStop},
                                    {"bEmailDoubleLine", q.bEmailDoubleLine}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}}; }),
    operation<partnerStartSessionForSubUser, partnerStartSessionForSubUserResponse>(
        "partnerStartSessionForSubUser",
        [](auto& q) { return Fields{{"sUser", q.sUser}, {"sPassword", q.sPassword},
                                    {"sSubUser", q.sSubUser}}; },
        [](auto& a) { return Fields{{"sSession", a.sSession}, {"nErrorCode", a.nErrorCode}}; }),
    operation<partnerEndSessionForSubUser, partnerEndSessionForSubUserResponse>(
        "partnerEndSessionForSubUser",
        [](auto& q) { return Fields{{"sSession", q.sSession}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}}; }),
    operation<setSmsSenderId, setSmsSenderIdResponse>(
        "setSmsSenderId",
        [](auto& q) { return Fields{{"sSession", q.sSession}, {"sSenderId", q.sSenderId}}; },
        [](auto& a) { return Fields{{"nErrorCode", a.nErrorCode}}; })};
// clang-format on

/// The operation whose request or response is `Record`.
template <class Record, std::size_t I = 0>
constexpr const auto& operationWith() {
  using Candidate = std::tuple_element_t<I, std::remove_const_t<decltype(operations)>>;
  if constexpr (std::is_same_v<typename Candidate::Request, Record> ||
                std::is_same_v<typename Candidate::Response, Record>) {
    return std::get<I>(operations);
  } else {
    return operationWith<Record, I + 1>();
  }
}

/// Calls `visitor(operation)` for the operation named `name`; its nested types Request and Response identify
/// it. Returns false if there is no such operation.
template <class Visitor>
bool visitOperation(std::string_view name, Visitor&& visitor) {
  return std::apply(
      [&](const auto&... each) { return ((each.name == name && (visitor(each), true)) || ...); }, operations);
}

/// Calls `visitor(operation)` for every operation, in the contract's order.
template <class Visitor>
void forEachOperation(Visitor&& visitor) {
  std::apply([&](const auto&... each) { (visitor(each), ...); }, operations);
}

}  // namespace parlexo::protocol
