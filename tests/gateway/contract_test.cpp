#include "gateway/protocol/contract.h"

#include <cstring>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gateway/core/gateway_client.h"

namespace parlexo {
namespace {

using ::testing::ElementsAreArray;

std::string wireType(protocol::FieldType type) {
  switch (type) {
    case protocol::FieldType::Text:
    case protocol::FieldType::BorrowedText:
      return "string";
    case protocol::FieldType::Integer:
      return "int";
    case protocol::FieldType::Real:
      return "double";
    case protocol::FieldType::Boolean:
      return "boolean";
    case protocol::FieldType::Binary:
      return "base64Binary";
  }
  return {};
}

std::string described(const protocol::Fields& fields) {
  std::string text;
  for (const protocol::Field& field : fields) {
    text += (text.empty() ? "" : ", ") + std::string(field.name) + " " + wireType(field.type);
  }
  return "(" + text + ")";
}

TEST(Contract, namesEveryOperationAndFieldInTheServicesOrder) {
  const std::vector<std::string> expected{
      "sessionStart(sUser string, sPassword string) -> sessionStartResponse(sSession string, nErrorCode"
      " int)",
      "sessionEnd(sSession string) -> sessionEndResponse(nErrorCode int)",
      "sendSms(sSession string, sMessage string, bFlash boolean, sListPhoneNumbers string) ->"
      " sendSmsResponse(sListReciepts string, nErrorCode int)",
      "getVersion() -> getVersionResponse(nVersion int)",
      "sendMms(sSession string, sDescription string, sFileName string, oData base64Binary,"
      " sListPhoneNumbers string) -> sendMmsResponse(sListReciepts string, nErrorCode int)",
      "sendFax(sSession string, sFileName string, oData base64Binary, sListPhoneNumbers string) ->"
      " sendFaxResponse(sListReciepts string, nErrorCode int)",
      "sendVoice_Text(sSession string, sMessage string, bPress1Key boolean, bWaitForSilence boolean,"
      " bAllowRepeat boolean, sListPhoneNumbers string) -> sendVoice_TextResponse(nErrorCode int,"
      " sListReciepts string)",
      "sendVoice_File(sSession string, sFileName string, oData base64Binary, bPress1Key boolean,"
      " bWaitForSilence boolean, bAllowRepeat boolean, sListPhoneNumbers string) ->"
      " sendVoice_FileResponse(sListReciepts string, nErrorCode int)",
      "getAccountBalance(sSession string) -> getAccountBalanceResponse(dValue double, nErrorCode int)",
      "getStatus(sSession string, sReciept string) -> getStatusResponse(nErrorCode int, sStatus string)",
      "sendWap(sSession string, sMessage string, sFileName string, oData base64Binary, sListPhoneNumbers"
      " string) -> sendWapResponse(sListReciepts string, nErrorCode int)",
      "scheduleMessageEnable(sDateTimeGmt string, sSession string) ->"
      " scheduleMessageEnableResponse(nErrorCode int)",
      "scheduleMessageDisable(sSession string) -> scheduleMessageDisableResponse(nErrorCode int)",
      "getNews() -> getNewsResponse(sNews string, nErrorCode int)",
      "getAccountHistory(sSession string) -> getAccountHistoryResponse(sXmlAccountHistory string,"
      " nErrorCode int)",
      "setAccountPassword(sSession string, sOldPassword string, sNewPassword string) ->"
      " setAccountPasswordResponse(nErrorCode int)",
      "partnerAddUser(sSession string, sUser string, sEmail string) -> partnerAddUserResponse(nErrorCode"
      " int)",
      "partnerAddEvent(sSession string, sUser string, sEventType string, sPackageType string, dAmount"
      " double, sDescription string) -> partnerAddEventResponse(nErrorCode int)",
      "partnerGetCostByCountry(sSession string, sCountry string, bMobileNumber boolean, sPackageType"
      " string, sCurrency string, sServiceType string) -> partnerGetCostByCountryResponse(nErrorCode int,"
      " dCostWholesaleFlat double, dCostWholesalePerHalfMin double, dCostResellerFlat double,"
      " dCostResellerPerHalfMin double, sNetworks string)",
      "partnerGetCostByPhoneNumber(sSession string, sPhoneNumber string, sPackageType string, sCurrency"
      " string, sServiceType string) -> partnerGetCostByPhoneNumberResponse(nErrorCode int,"
      " dCostWholesaleFlat double, dCostWholesalePerHalfMin double, dCostResellerFlat double,"
      " dCostResellerPerHalfMin double, sCountry string, sNetworks string)",
      "partnerEditUser(sSession string, sUser string, sEmail string) -> partnerEditUserResponse(nErrorCode"
      " int)",
      "partnerEditEmailMessaging(sSession string, sUser string, bEmailEnable boolean, sEmailCode string,"
      " bEmailFilter boolean, sEmailFilter1 string, sEmailFilter2 string, sEmailFilter3 string,"
      " bEmailSmsSplit boolean, bEmailEndDoubleLine boolean, bEmailEndStop boolean) ->"
      " partnerEditEmailMessagingResponse(nErrorCode int)",
      "partnerGetEmailMessaging(sSession string, sUser string) ->"
      " partnerGetEmailMessagingResponse(bEmailEnable boolean, sEmailCode string, bEmailFilter boolean,"
      " sEmailFilter1 string, sEmailFilter2 string, sEmailFilter3 string, bEmailSmsSplit boolean,"
      " bEmailEndDoubleLine boolean, bEmailEndStop boolean, nErrorCode int)",
      "getEmailMessaging(sSession string) -> getEmailMessagingResponse(bEmailEnable boolean, sEmailCode"
      " string, bEmailFilter boolean, sEmailFilter1 string, sEmailFilter2 string, sEmailFilter3 string,"
      " bEmailSmsSplit boolean, bEmailEndDoubleLine boolean, bEmailEndStop boolean, nErrorCode int)",
      "editEmailMessaging(sSession string, bEmailEnable boolean, sEmailCode string, bEmailFilter boolean,"
      " sEmailFilter1 string, sEmailFilter2 string, sEmailFilter3 string, bEmailSmsSplit boolean,"
      " bEmailEndStop boolean, bEmailDoubleLine boolean) -> editEmailMessagingResponse(nErrorCode int)",
      "partnerStartSessionForSubUser(sUser string, sPassword string, sSubUser string) ->"
      " partnerStartSessionForSubUserResponse(sSession string, nErrorCode int)",
      "partnerEndSessionForSubUser(sSession string) -> partnerEndSessionForSubUserResponse(nErrorCode int)",
      "setSmsSenderId(sSession string, sSenderId string) -> setSmsSenderIdResponse(nErrorCode int)"};
  std::vector<std::string> found;
  protocol::forEachOperation([&](const auto& operation) {
    typename std::remove_cvref_t<decltype(operation)>::Request request;
    typename std::remove_cvref_t<decltype(operation)>::Response response;
    const std::string name(operation.name);
    found.push_back(name + described(operation.fields(request)) + " -> " + name + "Response" +
                    described(operation.fields(response)));
  });
  EXPECT_THAT(found, ElementsAreArray(expected));
}

/// Two members that share one place would both read the value written last.
TEST(Contract, everyFieldHasAMemberOfItsOwn) {
  protocol::forEachOperation([&](const auto& operation) {
    typename std::remove_cvref_t<decltype(operation)>::Request request;
    const protocol::Fields fields = operation.fields(request);
    for (std::size_t i = 1; i < fields.size(); ++i) {
      EXPECT_LT(fields[i - 1].value, fields[i].value) << operation.name << " " << fields[i].name;
    }
  });
}

/// Where a virtual method stands in the class's table, counted from the first method behind the destructor.
template <class Method>
std::ptrdiff_t slotOf(Method method) {
  constexpr std::ptrdiff_t destructorSlots = 2;
  std::ptrdiff_t offset = 0;
  static_assert(sizeof method == 2 * sizeof offset);
  std::memcpy(&offset, &method, sizeof offset);
  return (offset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)) - destructorSlots;
}

TEST(GatewayClient, methodsStandInTheServicesOrder) {
  const std::vector<std::ptrdiff_t> slots{slotOf(&GatewayClient::sessionStart),
                                          slotOf(&GatewayClient::sessionEnd),
                                          slotOf(&GatewayClient::sendSms),
                                          slotOf(&GatewayClient::getVersion),
                                          slotOf(&GatewayClient::sendMms),
                                          slotOf(&GatewayClient::sendFax),
                                          slotOf(&GatewayClient::sendVoice_Text),
                                          slotOf(&GatewayClient::sendVoice_File),
                                          slotOf(&GatewayClient::getAccountBalance),
                                          slotOf(&GatewayClient::getStatus),
                                          slotOf(&GatewayClient::sendWap),
                                          slotOf(&GatewayClient::scheduleMessageEnable),
                                          slotOf(&GatewayClient::scheduleMessageDisable),
                                          slotOf(&GatewayClient::getNews),
                                          slotOf(&GatewayClient::getAccountHistory),
                                          slotOf(&GatewayClient::setAccountPassword),
                                          slotOf(&GatewayClient::partnerAddUser),
                                          slotOf(&GatewayClient::partnerAddEvent),
                                          slotOf(&GatewayClient::partnerGetCostByCountry),
                                          slotOf(&GatewayClient::partnerGetCostByPhoneNumber),
                                          slotOf(&GatewayClient::partnerEditUser),
                                          slotOf(&GatewayClient::partnerEditEmailMessaging),
                                          slotOf(&GatewayClient::partnerGetEmailMessaging),
                                          slotOf(&GatewayClient::getEmailMessaging),
                                          slotOf(&GatewayClient::editEmailMessaging),
                                          slotOf(&GatewayClient::partnerStartSessionForSubUser),
                                          slotOf(&GatewayClient::partnerEndSessionForSubUser),
                                          slotOf(&GatewayClient::setSmsSenderId)};
  for (std::size_t i = 0; i < slots.size(); ++i) EXPECT_EQ(slots[i], static_cast<std::ptrdiff_t>(i));
}

}  // namespace
}  // namespace parlexo
