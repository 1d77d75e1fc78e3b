// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <optional>

#include "simulator/countries.h"
#include "simulator/email_preferences_fields.h"
#include "simulator/operations.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

// What a partner charges his own customers, in proportion to what he pays.
constexpr double resellerFactor = 1.2;

bool isUserName(const QString& text) {
  constexpr qsizetype longest = 64;
  return !text.isEmpty() && text.size() <= longest &&
         std::all_of(text.begin(), text.end(),
                     [](QChar character) { return character.isPrint() && !character.isSpace(); });
}

std::optional<MessageType> serviceNamed(const QString& word) {
  constexpr std::array types = {MessageType::Sms, MessageType::Mms, MessageType::Fax, MessageType::Wap,
                                MessageType::Voice};
  const auto* found = std::find_if(types.begin(), types.end(), [&word](MessageType type) {
    return toWord(type).compare(word, Qt::CaseInsensitive) == 0;
  });
  return found == types.end() ? std::nullopt : std::optional<MessageType>(*found);
}

// Voice is paid by the half minute, everything else by the message.
template <class Response>
bool fillCosts(const Tariff& tariff, const std::string& serviceType, Response& response) {
  const std::optional<MessageType> service = serviceNamed(textOf(serviceType));
  if (!service) return false;
  const double amount = toAmount(priceOf(tariff, *service));
  const bool byTime = service == MessageType::Voice;
  response.dCostWholesaleFlat = byTime ? 0 : amount;
  response.dCostWholesalePerHalfMin = byTime ? amount : 0;
  response.dCostResellerFlat = response.dCostWholesaleFlat * resellerFactor;
  response.dCostResellerPerHalfMin = response.dCostWholesalePerHalfMin * resellerFactor;
  return true;
}

}  // namespace

Account* Operations::subAccount(const Account& parent, const std::string& user) {
  Account* found = state_.accounts.find(textOf(user));
  return found && found->parent == parent.user ? found : nullptr;
}

void Operations::handle(const protocol::partnerAddUser& request, protocol::partnerAddUserResponse& response) {
  const Account* partner = account(request.sSession);
  const QString user = textOf(request.sUser);
  if (!partner)
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
  else if (!partner->parent.isEmpty() || !isUserName(user) ||
           !state_.accounts.addBelow(*partner, user, textOf(request.sEmail)))
    response.nErrorCode = toNumber(protocol::ResultCode::BadUser);
}

void Operations::handle(const protocol::partnerEditUser& request,
                        protocol::partnerEditUserResponse& response) {
  const Account* partner = account(request.sSession);
  Account* user = partner ? subAccount(*partner, request.sUser) : nullptr;
  if (!partner)
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
  else if (!user)
    response.nErrorCode = toNumber(protocol::ResultCode::BadUser);
  else
    user->email = textOf(request.sEmail);
}

void Operations::handle(const protocol::partnerAddEvent& request,
                        protocol::partnerAddEventResponse& response) {
  const Account* partner = account(request.sSession);
  Account* user = partner ? subAccount(*partner, request.sUser) : nullptr;
  if (!partner) {
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
  } else if (!user) {
    response.nErrorCode = toNumber(protocol::ResultCode::BadUser);
  } else {
    const QString description = u"%1 %2: %3"_s.arg(textOf(request.sEventType), textOf(request.sPackageType),
                                                   textOf(request.sDescription));
    state_.accounts.post(*user, toCents(request.dAmount), state_.now(), description);
  }
}

void Operations::handle(const protocol::partnerGetCostByCountry& request,
                        protocol::partnerGetCostByCountryResponse& response) {
  if (!account(request.sSession))
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
  else if (!countryNamed(textOf(request.sCountry)) ||
           !fillCosts(state_.options.tariff, request.sServiceType, response))
    response.nErrorCode = toNumber(protocol::ResultCode::UnknownTariff);
  else
    response.sNetworks = request.bMobileNumber ? "All mobile networks" : "All fixed networks";
}

void Operations::handle(const protocol::partnerGetCostByPhoneNumber& request,
                        protocol::partnerGetCostByPhoneNumberResponse& response) {
  const std::optional<Country> country = countryOf(textOf(request.sPhoneNumber));
  if (!account(request.sSession)) {
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
  } else if (!country || !fillCosts(state_.options.tariff, request.sServiceType, response)) {
    response.nErrorCode = toNumber(protocol::ResultCode::UnknownTariff);
  } else {
    response.sCountry = keep(country->name);
    response.sNetworks = "All networks";
  }
}

void Operations::handle(const protocol::partnerGetEmailMessaging& request,
                        protocol::partnerGetEmailMessagingResponse& response) {
  const Account* partner = account(request.sSession);
  const Account* user = partner ? subAccount(*partner, request.sUser) : nullptr;
  if (!partner)
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
  else if (!user)
    response.nErrorCode = toNumber(protocol::ResultCode::BadUser);
  else
    writePreferences(user->emailPreferences, response, *this);
}

void Operations::handle(const protocol::partnerEditEmailMessaging& request,
                        protocol::partnerEditEmailMessagingResponse& response) {
  const Account* partner = account(request.sSession);
  Account* user = partner ? subAccount(*partner, request.sUser) : nullptr;
  EmailPreferences wanted = readPreferences(request);
  wanted.endAtDoubleLine = request.bEmailEndDoubleLine;
  if (!partner)
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
  else if (!user)
    response.nErrorCode = toNumber(protocol::ResultCode::BadUser);
  else if (!areAcceptable(wanted))
    response.nErrorCode = toNumber(protocol::ResultCode::BadEmailSettings);
  else
    user->emailPreferences = wanted;
}

void Operations::handle(const protocol::partnerStartSessionForSubUser& request,
                        protocol::partnerStartSessionForSubUserResponse& response) {
  const Account* partner = accountWithPassword(request.sUser, request.sPassword);
  const Account* user = partner ? subAccount(*partner, request.sSubUser) : nullptr;
  if (!partner)
    response.nErrorCode = toNumber(protocol::ResultCode::WrongCredentials);
  else if (!user)
    response.nErrorCode = toNumber(protocol::ResultCode::BadUser);
  else
    response.sSession = keep(state_.sessions.open(user->user, state_.now()));
}

void Operations::handle(const protocol::partnerEndSessionForSubUser& request,
                        protocol::partnerEndSessionForSubUserResponse& response) {
  response.nErrorCode = toNumber(endSession(request.sSession));
}

}  // namespace parlexo::simulator
