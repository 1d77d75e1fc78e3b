// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>

#include <QString>

#include "account/core/account_services.h"

namespace parlexo {

/// How the gateway converts e-mails to messages of the account.
struct EmailPreferences {
  bool isEnabled = false;
  QString identityCode{};
  bool splitsLongSms = false;
  bool stopsAtDoubleLine = false;
  bool stopsAtEndKeyword = false;
  bool isFiltered = false;
  std::array<QString, 3> addresses{};  ///< the allowed senders if `isFiltered`

  [[nodiscard]] bool operator==(const EmailPreferences&) const = default;
};

enum class EmailSaveOutcome {
  Saved,
  Incomplete,  ///< the identity code or an address is missing
  Failed,
};

/// Fetches the account's e-mail preferences from the gateway. Returns nullopt if that fails, without a
/// message.
[[nodiscard]] std::optional<EmailPreferences> fetchEmailPreferences(const AccountServices& services);

/// Saves `preferences` at the gateway, which validates them, and reports the outcome to the user. Shows the
/// progress box during the call.
[[nodiscard]] EmailSaveOutcome saveEmailPreferences(const AccountServices& services,
                                                    const EmailPreferences& preferences);

}  // namespace parlexo
