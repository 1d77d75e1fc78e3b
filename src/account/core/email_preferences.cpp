// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/core/email_preferences.h"

#include <QCoreApplication>

#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "connection/client/gateway.h"
#include "protocol/result_code.h"

namespace parlexo {

namespace {

EmailPreferences fromResponse(const protocol::getEmailMessagingResponse& response) {
  return {.isEnabled = response.bEmailEnable,
          .identityCode = fromWire(response.sEmailCode),
          .splitsLongSms = response.bEmailSmsSplit,
          .stopsAtDoubleLine = response.bEmailEndDoubleLine,
          .stopsAtEndKeyword = response.bEmailEndStop,
          .isFiltered = response.bEmailFilter,
          .addresses = {fromWire(response.sEmailFilter1), fromWire(response.sEmailFilter2),
                        fromWire(response.sEmailFilter3)}};
}

EmailSaveOutcome requestSave(const AccountServices& services, const EmailPreferences& preferences) {
  const ProgressScope box(services.progress);
  const auto& [first, second, third] = preferences.addresses;
  const auto reply = services.gateway.call<&GatewayClient::editEmailMessaging>(
      services.state.session, preferences.isEnabled, preferences.identityCode, preferences.isFiltered, first,
      second, third, preferences.splitsLongSms, protocol::StopsAtEndKeyword(preferences.stopsAtEndKeyword),
      protocol::StopsAtDoubleLine(preferences.stopsAtDoubleLine));
  if (!reply.answered()) return EmailSaveOutcome::Failed;
  if (reply->nErrorCode == protocol::ResultCode::BadEmailSettings) return EmailSaveOutcome::Incomplete;
  return reply->nErrorCode == 0 ? EmailSaveOutcome::Saved : EmailSaveOutcome::Failed;
}

}  // namespace

std::optional<EmailPreferences> fetchEmailPreferences(const AccountServices& services) {
  const auto reply = services.gateway.call<&GatewayClient::getEmailMessaging>(services.state.session);
  if (!reply.answered() || reply->nErrorCode != 0) return std::nullopt;
  return fromResponse(*reply);
}

EmailSaveOutcome saveEmailPreferences(const AccountServices& services, const EmailPreferences& preferences) {
  const EmailSaveOutcome outcome = requestSave(services, preferences);
  switch (outcome) {
    case EmailSaveOutcome::Saved:
      services.notifier.information(
          QCoreApplication::translate("EmailPreferences", "Saved email messaging preferences"));
      break;
    case EmailSaveOutcome::Incomplete:
      services.notifier.error(QCoreApplication::translate(
          "EmailPreferences",
          "Bad email messaging settings provided. You must provide an email code (and email "
          "addresses to filter if email filtering is enabled)"));
      break;
    case EmailSaveOutcome::Failed:
      services.notifier.error(QCoreApplication::translate(
          "EmailPreferences", "An error occured while trying to save your email messaging preferences"));
      break;
  }
  return outcome;
}

}  // namespace parlexo
