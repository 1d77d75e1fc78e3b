#include "gateway/protocol/contract.h"

#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gateway/core/gateway_client.h"

namespace parlexo {
namespace {

/// The letter with which the name of a field of this type begins.
char firstLetter(protocol::FieldType type) {
  switch (type) {
    case protocol::FieldType::Text:
    case protocol::FieldType::BorrowedText:
      return 's';
    case protocol::FieldType::Integer:
      return 'n';
    case protocol::FieldType::Real:
      return 'd';
    case protocol::FieldType::Boolean:
      return 'b';
    case protocol::FieldType::Binary:
      return 'o';
  }
  return 0;
}

std::string namesOf(const protocol::Fields& fields) {
  if (fields.empty()) return "  (none)\n";
  std::string names = " ";
  for (const protocol::Field& field : fields) {
    EXPECT_EQ(field.name[0], firstLetter(field.type)) << field.name;
    names.append(" ").append(field.name);
  }
  return names.append("\n");
}

TEST(Contract, namesEveryOperationAndFieldInTheServicesOrder) {
  // For every operation its name, the fields of its request and those of its response.
  const std::string expected = R"(sessionStart
  sUser sPassword
  sSession nErrorCode
sessionEnd
  sSession
  nErrorCode
sendSms
  sSession sMessage bFlash sListPhoneNumbers
  sListReciepts nErrorCode
getVersion
  (none)
  nVersion
sendMms
  sSession sDescription sFileName oData sListPhoneNumbers
  sListReciepts nErrorCode
sendFax
  sSession sFileName oData sListPhoneNumbers
  sListReciepts nErrorCode
sendVoice_Text
  sSession sMessage bPress1Key bWaitForSilence bAllowRepeat sListPhoneNumbers
  nErrorCode sListReciepts
sendVoice_File
  sSession sFileName oData bPress1Key bWaitForSilence bAllowRepeat sListPhoneNumbers
  sListReciepts nErrorCode
getAccountBalance
  sSession
  dValue nErrorCode
getStatus
  sSession sReciept
  nErrorCode sStatus
sendWap
  sSession sMessage sFileName oData sListPhoneNumbers
  sListReciepts nErrorCode
scheduleMessageEnable
  sDateTimeGmt sSession
  nErrorCode
scheduleMessageDisable
  sSession
  nErrorCode
getNews
  (none)
  sNews nErrorCode
getAccountHistory
  sSession
  sXmlAccountHistory nErrorCode
setAccountPassword
  sSession sOldPassword sNewPassword
  nErrorCode
partnerAddUser
  sSession sUser sEmail
  nErrorCode
partnerAddEvent
  sSession sUser sEventType sPackageType dAmount sDescription
  nErrorCode
partnerGetCostByCountry
  sSession sCountry bMobileNumber sPackageType sCurrency sServiceType
  nErrorCode dCostWholesaleFlat dCostWholesalePerHalfMin dCostResellerFlat dCostResellerPerHalfMin sNetworks
partnerGetCostByPhoneNumber
  sSession sPhoneNumber sPackageType sCurrency sServiceType
  nErrorCode dCostWholesaleFlat dCostWholesalePerHalfMin dCostResellerFlat dCostResellerPerHalfMin sCountry sNetworks
partnerEditUser
  sSession sUser sEmail
  nErrorCode
partnerEditEmailMessaging
  sSession sUser bEmailEnable sEmailCode bEmailFilter sEmailFilter1 sEmailFilter2 sEmailFilter3 bEmailSmsSplit bEmailEndDoubleLine bEmailEndStop
  nErrorCode
partnerGetEmailMessaging
  sSession sUser
  bEmailEnable sEmailCode bEmailFilter sEmailFilter1 sEmailFilter2 sEmailFilter3 bEmailSmsSplit bEmailEndDoubleLine bEmailEndStop nErrorCode
getEmailMessaging
  sSession
  bEmailEnable sEmailCode bEmailFilter sEmailFilter1 sEmailFilter2 sEmailFilter3 bEmailSmsSplit bEmailEndDoubleLine bEmailEndStop nErrorCode
editEmailMessaging
  sSession bEmailEnable sEmailCode bEmailFilter sEmailFilter1 sEmailFilter2 sEmailFilter3 bEmailSmsSplit bEmailEndStop bEmailDoubleLine
  nErrorCode
partnerStartSessionForSubUser
  sUser sPassword sSubUser
  sSession nErrorCode
partnerEndSessionForSubUser
  sSession
  nErrorCode
setSmsSenderId
  sSession sSenderId
  nErrorCode
)";
  std::string found;
  protocol::forEachOperation([&](const auto& operation) {
    typename std::remove_cvref_t<decltype(operation)>::Request request;
    typename std::remove_cvref_t<decltype(operation)>::Response response;
    found.append(operation.name).append("\n").append(namesOf(operation.fields(request)));
    found.append(namesOf(operation.fields(response)));
  });
  EXPECT_EQ(found, expected);
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

template <class... Methods>
std::vector<std::ptrdiff_t> slotsOf(Methods... methods) {
  return {slotOf(methods)...};
}

TEST(GatewayClient, methodsStandInTheServicesOrder) {
  using C = GatewayClient;
  const auto slots =
      slotsOf(&C::sessionStart, &C::sessionEnd, &C::sendSms, &C::getVersion, &C::sendMms, &C::sendFax,
              &C::sendVoice_Text, &C::sendVoice_File, &C::getAccountBalance, &C::getStatus, &C::sendWap,
              &C::scheduleMessageEnable, &C::scheduleMessageDisable, &C::getNews, &C::getAccountHistory,
              &C::setAccountPassword, &C::partnerAddUser, &C::partnerAddEvent, &C::partnerGetCostByCountry,
              &C::partnerGetCostByPhoneNumber, &C::partnerEditUser, &C::partnerEditEmailMessaging,
              &C::partnerGetEmailMessaging, &C::getEmailMessaging, &C::editEmailMessaging,
              &C::partnerStartSessionForSubUser, &C::partnerEndSessionForSubUser, &C::setSmsSenderId);
  for (std::size_t i = 0; i < slots.size(); ++i) EXPECT_EQ(slots[i], static_cast<std::ptrdiff_t>(i));
}

}  // namespace
}  // namespace parlexo
