// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <utility>

#include "simulator/operations.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

// The ratio of the price that a partner charges to the price that the partner pays.
constexpr double resellerFactor = 1.2;

bool isUserName(const QString& text) {
  constexpr qsizetype longest = 64;
  return !text.isEmpty() && text.size() <= longest &&
         std::all_of(text.begin(), text.end(),
                     [](QChar character) { return character.isPrint() && !character.isSpace(); });
}

// Calling codes as assigned by the ITU, and the English names of their countries.
constexpr std::pair<const char*, const char*> countries[] = {
    {"61", "Australia"}, {"86", "China"},          {"33", "France"},
    {"49", "Germany"},   {"60", "Malaysia"},       {"64", "New Zealand"},
    {"65", "Singapore"}, {"44", "United Kingdom"}, {"1", "United States"},
};

bool hasTariff(const QString& country) {
  return std::any_of(std::begin(countries), std::end(countries), [&country](const auto& entry) {
    return country.compare(QLatin1String(entry.second), Qt::CaseInsensitive) == 0;
  });
}

// Returns the name of the country that an international number ("+" and digits) belongs to, or an empty
// string if there is no tariff for it.
QString findCountry(const QString& number) {
  const auto* it = std::find_if(std::begin(countries), std::end(countries), [&number](const auto& entry) {
    return number.startsWith(u'+' + QLatin1String(entry.first));
  });
  return it == std::end(countries) ? QString() : QString::fromLatin1(it->second);
}

std::optional<MessageType> parseServiceType(const QString& word) {
  constexpr std::array types = {MessageType::Sms, MessageType::Mms, MessageType::Fax, MessageType::Wap,
                                MessageType::Voice};
  const auto* it = std::find_if(types.begin(), types.end(), [&word](MessageType type) {
    return toWord(type).compare(word, Qt::CaseInsensitive) == 0;
  });
  return it == types.end() ? std::nullopt : std::optional<MessageType>(*it);
}

// Voice is charged per half minute, all other services per message.
template <class Response>
bool fillCosts(const Tariff& tariff, const std::string& serviceType, Response& response) {
  const std::optional<MessageType> service = parseServiceType(toText(serviceType));
  if (!service) return false;
  const double amount = toAmount(unitPrice(tariff, *service));
  const bool isTimed = service == MessageType::Voice;
  response.dCostWholesaleFlat = isTimed ? 0 : amount;
  response.dCostWholesalePerHalfMin = isTimed ? amount : 0;
  response.dCostResellerFlat = response.dCostWholesaleFlat * resellerFactor;
  response.dCostResellerPerHalfMin = response.dCostWholesalePerHalfMin * resellerFactor;
  return true;
}

}  // namespace

Account* Operations::subAccount(const Account& parent, const std::string& user) {
  Account* account = state_.accounts.find(toText(user));
  return account && account->parent == parent.user ? account : nullptr;
}

ResultCode Operations::handle(const protocol::partnerAddUser& request, protocol::partnerAddUserResponse&) {
  const Account* partner = account(request.sSession);
  if (!partner) return ResultCode::SessionExpired;
  const QString user = toText(request.sUser);
  const bool added = partner->parent.isEmpty() && isUserName(user) &&
                     state_.accounts.addBelow(*partner, user, toText(request.sEmail));
  return added ? ResultCode::Success : ResultCode::BadUser;
}

ResultCode Operations::handle(const protocol::partnerEditUser& request, protocol::partnerEditUserResponse&) {
  const Account* partner = account(request.sSession);
  if (!partner) return ResultCode::SessionExpired;
  Account* user = subAccount(*partner, request.sUser);
  if (!user) return ResultCode::BadUser;
  user->email = toText(request.sEmail);
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::partnerAddEvent& request, protocol::partnerAddEventResponse&) {
  const Account* partner = account(request.sSession);
  if (!partner) return ResultCode::SessionExpired;
  Account* user = subAccount(*partner, request.sUser);
  if (!user) return ResultCode::BadUser;
  const QString description = u"%1 %2: %3"_s.arg(toText(request.sEventType), toText(request.sPackageType),
                                                 toText(request.sDescription));
  state_.accounts.post(*user, toCents(request.dAmount), state_.now(), description);
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::partnerGetCostByCountry& request,
                              protocol::partnerGetCostByCountryResponse& response) {
  if (!account(request.sSession)) return ResultCode::SessionExpired;
  if (!hasTariff(toText(request.sCountry)) ||
      !fillCosts(state_.options.tariff, request.sServiceType, response))
    return ResultCode::UnknownTariff;
  response.sNetworks = request.bMobileNumber ? "All mobile networks" : "All fixed networks";
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::partnerGetCostByPhoneNumber& request,
                              protocol::partnerGetCostByPhoneNumberResponse& response) {
  if (!account(request.sSession)) return ResultCode::SessionExpired;
  const QString country = findCountry(toText(request.sPhoneNumber));
  if (country.isEmpty() || !fillCosts(state_.options.tariff, request.sServiceType, response))
    return ResultCode::UnknownTariff;
  response.sCountry = toWire(country);
  response.sNetworks = "All networks";
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::partnerStartSessionForSubUser& request,
                              protocol::partnerStartSessionForSubUserResponse& response) {
  const Account* partner = accountWithPassword(request.sUser, request.sPassword);
  if (!partner) return ResultCode::WrongCredentials;
  const Account* user = subAccount(*partner, request.sSubUser);
  if (!user) return ResultCode::BadUser;
  response.sSession = toWire(state_.sessions.open(user->user, state_.now()));
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::partnerEndSessionForSubUser& request,
                              protocol::partnerEndSessionForSubUserResponse&) {
  return endSession(request.sSession);
}

}  // namespace parlexo::simulator
