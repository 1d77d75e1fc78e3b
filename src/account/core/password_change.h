// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <utility>

#include <QString>

#include "account/core/account_services.h"

namespace parlexo {

/// The user's input for a password change.
struct PasswordDraft {
  QString oldPassword;
  QString newPassword;
  QString retyped;
};

enum class PasswordField { Old, New, Retyped };

/// An error message and the field to correct.
using PasswordProblem = std::pair<QString, PasswordField>;

/// Validates `draft`. Returns the first violated rule, or nullopt if `draft` is valid. Lengths count bytes in
/// the code page, as the gateway does. The retyped password is checked for letters and digits, before its
/// length.
[[nodiscard]] std::optional<PasswordProblem> validate(const PasswordDraft& draft);

/// Validates `draft`, changes the account's password at the gateway and reports the outcome to the user.
/// Shows the progress box during the call. Returns nullopt on success, otherwise the field to correct.
[[nodiscard]] std::optional<PasswordField> changePassword(const AccountServices& services,
                                                          const PasswordDraft& draft);

}  // namespace parlexo
