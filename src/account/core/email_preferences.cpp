// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/core/email_preferences.h"

#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "connection/client/gateway.h"
#include "protocol/result_code.h"

namespace parlexo {

using namespace Qt::StringLiterals;

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

}  // namespace

std::optional<EmailPreferences> EmailPreferencesFlow::load() const {
  const auto reply = services_.gateway.call<&GatewayClient::getEmailMessaging>(services_.state.session);
  if (!reply.answered() || reply->nErrorCode != 0) return std::nullopt;
  return fromResponse(*reply);
}

EmailSaveOutcome EmailPreferencesFlow::save(const EmailPreferences& preferences) const {
  const EmailSaveOutcome outcome = ask(preferences);
  switch (outcome) {
    case EmailSaveOutcome::Saved:
      services_.notifier.information(u"Saved email messaging preferences"_s);
      break;
    case EmailSaveOutcome::Incomplete:
      services_.notifier.error(
          u"Bad email messaging settings provided. You must provide an email code (and email "
          "addresses to filter if email filtering is enabled)"_s);
      break;
    case EmailSaveOutcome::Failed:
      services_.notifier.error(u"An error occured while trying to save your email messaging preferences"_s);
      break;
  }
  return outcome;
}

EmailSaveOutcome EmailPreferencesFlow::ask(const EmailPreferences& preferences) const {
  const ProgressScope box(services_.progress);
  const auto& [first, second, third] = preferences.addresses;
  const auto reply = services_.gateway.call<&GatewayClient::editEmailMessaging>(
      services_.state.session, preferences.isEnabled, preferences.identityCode, preferences.isFiltered, first,
      second, third, preferences.splitsLongSms, protocol::StopsAtEndKeyword(preferences.stopsAtEndKeyword),
      protocol::StopsAtDoubleLine(preferences.stopsAtDoubleLine));
  if (!reply.answered()) return EmailSaveOutcome::Failed;
  if (reply->nErrorCode == protocol::ResultCode::BadEmailSettings) return EmailSaveOutcome::Incomplete;
  return reply->nErrorCode == 0 ? EmailSaveOutcome::Saved : EmailSaveOutcome::Failed;
}

}  // namespace parlexo
