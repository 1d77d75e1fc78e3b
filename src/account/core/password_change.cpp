// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/core/password_change.h"

#include <algorithm>
#include <string>

#include <QCoreApplication>

#include "base/message_texts.h"
#include "base/notifier.h"
#include "base/progress.h"
#include "base/run_state.h"
#include "base/secret.h"
#include "connection/client/gateway.h"

namespace parlexo {

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

auto requestChange(const AccountServices& services, const PasswordDraft& draft) {
  const ProgressScope box(services.progress);
  return services.gateway.call<&GatewayClient::setAccountPassword>(
      services.state.session, Secret(draft.oldPassword), Secret(draft.newPassword));
}

}  // namespace

std::optional<PasswordProblem> validate(const PasswordDraft& draft) {
  const auto& [oldPassword, newPassword, retyped] = draft;
  const auto problem = [](const char* text, PasswordField field) {
    return PasswordProblem{QCoreApplication::translate("PasswordChange", text), field};
  };
  if (!hasPasswordLength(oldPassword))
    return problem(
        QT_TRANSLATE_NOOP("PasswordChange",
                          "No old password has been provided that is between 6 and 10 characters."),
        PasswordField::Old);
  if (!hasPasswordLength(newPassword))
    return problem(
        QT_TRANSLATE_NOOP("PasswordChange",
                          "No new password has been provided that is between 6 and 10 characters."),
        PasswordField::New);
  if (!hasLetterAndDigit(retyped))
    // If both are the same, retyping is not the mistake.
    return problem(
        QT_TRANSLATE_NOOP("PasswordChange", "Password must contain some characters and some numbers."),
        retyped == newPassword ? PasswordField::New : PasswordField::Retyped);
  if (!hasPasswordLength(retyped))
    return problem(
        QT_TRANSLATE_NOOP("PasswordChange",
                          "No new retype password has been provided that is between 6 and 10 characters."),
        PasswordField::Retyped);
  if (newPassword != retyped)
    return problem(QT_TRANSLATE_NOOP("PasswordChange",
                                     "The new password and retyped password does not match. Please enter "
                                     "the passwords match."),
                   PasswordField::Retyped);
  return std::nullopt;
}

std::optional<PasswordField> changePassword(const AccountServices& services, const PasswordDraft& draft) {
  if (const auto problem = validate(draft)) {
    services.notifier.error(problem->first);
    return problem->second;
  }
  const auto reply = requestChange(services, draft);
  if (reply.answered() && reply->nErrorCode == 0) {
    services.notifier.information(
        QCoreApplication::translate("PasswordChange", "Your password has successfully been updated!"));
    return std::nullopt;
  }
  const QString message =
      QCoreApplication::translate("PasswordChange", "Could not successfully set the new password. Error: %i");
  services.notifier.error(withNumber(message, reply->nErrorCode));
  return PasswordField::Old;
}

}  // namespace parlexo
