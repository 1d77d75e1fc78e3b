// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/core/password_change.h"

#include <algorithm>
#include <string>

#include "base/message_texts.h"
#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "base/secret.h"
#include "connection/client/gateway.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t shortestPassword = 6;  // bytes
constexpr std::size_t longestPassword = 10;

bool hasPasswordLength(const QString& password) {
  const Secret secret(password);
  const std::string& bytes = secret;
  return bytes.size() >= shortestPassword && bytes.size() <= longestPassword;
}

bool hasLetterAndDigit(const QString& password) {
  const auto isLetter = [](QChar c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); };
  const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
  return std::any_of(password.begin(), password.end(), isLetter) &&
         std::any_of(password.begin(), password.end(), isDigit);
}

}  // namespace

std::optional<PasswordProblem> problemWith(const PasswordDraft& draft) {
  const auto& [oldPassword, newPassword, retyped] = draft;
  if (!hasPasswordLength(oldPassword))
    return {
        {u"No old password has been provided that is between 6 and 10 characters."_s, PasswordField::Old}};
  if (!hasPasswordLength(newPassword))
    return {
        {u"No new password has been provided that is between 6 and 10 characters."_s, PasswordField::New}};
  if (!hasLetterAndDigit(retyped))
    // Retyped as it was meant, it is the new password that has to be another one.
    return {{u"Password must contain some characters and some numbers."_s,
             retyped == newPassword ? PasswordField::New : PasswordField::Retyped}};
  if (!hasPasswordLength(retyped))
    return {{u"No new retype password has been provided that is between 6 and 10 characters."_s,
             PasswordField::Retyped}};
  if (newPassword != retyped)
    return {
        {u"The new password and retyped password does not match. Please enter the passwords "
         "match."_s,
         PasswordField::Retyped}};
  return std::nullopt;
}

std::optional<PasswordField> PasswordChangeFlow::change(const PasswordDraft& draft) const {
  if (const auto problem = problemWith(draft)) {
    services_.notifier.error(problem->text);
    return problem->field;
  }
  const Answer answer = ask(draft);
  if (answer.answered && answer.code == 0) {
    services_.notifier.information(u"Your password has successfully been updated!"_s);
    return std::nullopt;
  }
  services_.notifier.error(
      withNumber(u"Could not successfully set the new password. Error: %i"_s, answer.code));
  return PasswordField::Old;
}

PasswordChangeFlow::Answer PasswordChangeFlow::ask(const PasswordDraft& draft) const {
  const ProgressScope box(services_.progress);
  const auto reply = services_.gateway.call<&GatewayClient::setAccountPassword>(
      services_.state.session, Secret(draft.oldPassword), Secret(draft.newPassword));
  return {reply.answered(), reply->nErrorCode};
}

}  // namespace parlexo
