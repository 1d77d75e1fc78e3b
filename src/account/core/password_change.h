// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QString>

#include "account/core/account_services.h"

namespace parlexo {

/// What the user typed to get a new password.
struct PasswordDraft {
  QString oldPassword;
  QString newPassword;
  QString retyped;
};

enum class PasswordField { Old, New, Retyped };

/// What keeps a draft from being sent, and where the user can mend it.
struct PasswordProblem {
  QString text;
  PasswordField field = PasswordField::Old;
};

/// The first rule that `draft` breaks; none when it may be sent. Lengths count bytes of the code page, which
/// is what the gateway sees. Letters and digits are looked for in the retyped password, before its length.
[[nodiscard]] std::optional<PasswordProblem> problemWith(const PasswordDraft& draft);

/// Gives the account a new password.
class PasswordChangeFlow {
 public:
  /// `services` must refer to objects that outlive the flow.
  explicit PasswordChangeFlow(const AccountServices& services) : services_(services) {}

  /// Checks `draft`, asks the gateway and tells the user what became of it. Returns nothing when the password
  /// was changed, otherwise the field that the user should look at.
  [[nodiscard]] std::optional<PasswordField> change(const PasswordDraft& draft) const;

 private:
  /// 0, or the gateway's code; the code is 0 too when there was no answer.
  struct Answer {
    bool answered = false;
    int code = 0;
  };
  [[nodiscard]] Answer ask(const PasswordDraft& draft) const;

  AccountServices services_;
};

}  // namespace parlexo
