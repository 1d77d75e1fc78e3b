// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/email_preferences_fields.h"
#include "simulator/operations.h"

namespace parlexo::simulator {

void Operations::handle(const protocol::getAccountBalance& request,
                        protocol::getAccountBalanceResponse& response) {
  if (const Account* owner = account(request.sSession))
    response.dValue = toAmount(owner->balanceCents);
  else
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
}

void Operations::handle(const protocol::getAccountHistory& request,
                        protocol::getAccountHistoryResponse& response) {
  if (const Account* owner = account(request.sSession))
    response.sXmlAccountHistory = keep(historyText(*owner));
  else
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
}

void Operations::handle(const protocol::setAccountPassword& request,
                        protocol::setAccountPasswordResponse& response) {
  Account* owner = account(request.sSession);
  const QString wanted = textOf(request.sNewPassword);
  if (!owner)
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
  else if (owner->password != textOf(request.sOldPassword))
    response.nErrorCode = toNumber(protocol::ResultCode::WrongCredentials);
  else if (!isAcceptablePassword(wanted))
    response.nErrorCode = toNumber(protocol::ResultCode::WeakPassword);
  else
    owner->password = wanted;
}

void Operations::handle(const protocol::getEmailMessaging& request,
                        protocol::getEmailMessagingResponse& response) {
  if (const Account* owner = account(request.sSession))
    writePreferences(owner->emailPreferences, response, *this);
  else
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
}

void Operations::handle(const protocol::editEmailMessaging& request,
                        protocol::editEmailMessagingResponse& response) {
  Account* owner = account(request.sSession);
  EmailPreferences wanted = readPreferences(request);
  wanted.endAtDoubleLine = request.bEmailDoubleLine;
  if (!owner)
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
  else if (!areAcceptable(wanted))
    response.nErrorCode = toNumber(protocol::ResultCode::BadEmailSettings);
  else
    owner->emailPreferences = wanted;
}

}  // namespace parlexo::simulator
