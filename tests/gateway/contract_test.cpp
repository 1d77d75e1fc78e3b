#include "gateway/protocol/contract.h"

#include <string>

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace parlexo
