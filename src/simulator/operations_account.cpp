// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/operations.h"

namespace parlexo::simulator {

namespace {

// The e-mail operations of accounts and of partners have different records with the same field names. Only
// the double-line flag of a request differs, so the caller passes it.
template <class Request>
EmailPreferences toPreferences(const Request& request, bool endAtDoubleLine) {
  return {.enabled = request.bEmailEnable,
          .code = toText(request.sEmailCode),
          .filter = request.bEmailFilter,
          .address1 = toText(request.sEmailFilter1),
          .address2 = toText(request.sEmailFilter2),
          .address3 = toText(request.sEmailFilter3),
          .splitLong = request.bEmailSmsSplit,
          .endAtDoubleLine = endAtDoubleLine,
          .endAtKeyword = request.bEmailEndStop};
}

template <class Response>
void fillResponse(const EmailPreferences& preferences, Response& response, Operations& operations) {
  response.bEmailEnable = preferences.enabled;
  response.sEmailCode = operations.toWire(preferences.code);
  response.bEmailFilter = preferences.filter;
  response.sEmailFilter1 = operations.toWire(preferences.address1);
  response.sEmailFilter2 = operations.toWire(preferences.address2);
  response.sEmailFilter3 = operations.toWire(preferences.address3);
  response.bEmailSmsSplit = preferences.splitLong;
  response.bEmailEndDoubleLine = preferences.endAtDoubleLine;
  response.bEmailEndStop = preferences.endAtKeyword;
}

ResultCode savePreferences(Account& account, const EmailPreferences& preferences) {
  if (!areComplete(preferences)) return ResultCode::BadEmailSettings;
  account.emailPreferences = preferences;
  return ResultCode::Success;
}

}  // namespace

ResultCode Operations::handle(const protocol::getAccountBalance& request,
                              protocol::getAccountBalanceResponse& response) {
  const Account* owner = account(request.sSession);
  if (!owner) return ResultCode::SessionExpired;
  response.dValue = toAmount(owner->balanceCents);
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::getAccountHistory& request,
                              protocol::getAccountHistoryResponse& response) {
  const Account* owner = account(request.sSession);
  if (!owner) return ResultCode::SessionExpired;
  response.sXmlAccountHistory = toWire(historyText(*owner));
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::setAccountPassword& request,
                              protocol::setAccountPasswordResponse&) {
  Account* owner = account(request.sSession);
  const QString newPassword = toText(request.sNewPassword);
  if (!owner) return ResultCode::SessionExpired;
  if (owner->password != toText(request.sOldPassword)) return ResultCode::WrongCredentials;
  if (!isAcceptablePassword(newPassword)) return ResultCode::WeakPassword;
  owner->password = newPassword;
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::getEmailMessaging& request,
                              protocol::getEmailMessagingResponse& response) {
  const Account* owner = account(request.sSession);
  if (!owner) return ResultCode::SessionExpired;
  fillResponse(owner->emailPreferences, response, *this);
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::editEmailMessaging& request,
                              protocol::editEmailMessagingResponse&) {
  Account* owner = account(request.sSession);
  if (!owner) return ResultCode::SessionExpired;
  return savePreferences(*owner, toPreferences(request, request.bEmailDoubleLine));
}

ResultCode Operations::handle(const protocol::partnerGetEmailMessaging& request,
                              protocol::partnerGetEmailMessagingResponse& response) {
  const Account* partner = account(request.sSession);
  if (!partner) return ResultCode::SessionExpired;
  const Account* user = subAccount(*partner, request.sUser);
  if (!user) return ResultCode::BadUser;
  fillResponse(user->emailPreferences, response, *this);
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::partnerEditEmailMessaging& request,
                              protocol::partnerEditEmailMessagingResponse&) {
  const Account* partner = account(request.sSession);
  if (!partner) return ResultCode::SessionExpired;
  Account* user = subAccount(*partner, request.sUser);
  if (!user) return ResultCode::BadUser;
  return savePreferences(*user, toPreferences(request, request.bEmailEndDoubleLine));
}

}  // namespace parlexo::simulator
