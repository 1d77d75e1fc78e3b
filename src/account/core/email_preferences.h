// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>

#include <QString>

#include "account/core/account_services.h"

namespace parlexo {

/// How the gateway turns e-mails into messages of the account.
struct EmailPreferences {
  bool isEnabled = false;
  QString identityCode{};
  bool splitsLongSms = false;
  bool stopsAtDoubleLine = false;
  bool stopsAtEndKeyword = false;
  bool isFiltered = false;
  std::array<QString, 3> addresses{};  ///< those that may send when the filter is on

  [[nodiscard]] bool operator==(const EmailPreferences&) const = default;
};

enum class EmailSaveOutcome {
  Saved,
  Incomplete,  ///< the gateway misses the identity code or an address
  Failed,
};

/// Fetches the account's e-mail preferences and saves changed ones.
class EmailPreferencesFlow {
 public:
  /// `services` must refer to objects that outlive the flow.
  explicit EmailPreferencesFlow(const AccountServices& services) : services_(services) {}

  /// What the gateway holds; none when it could not be had, of which the user is told nothing.
  [[nodiscard]] std::optional<EmailPreferences> load() const;

  /// Sends `preferences` as they are, the gateway being the judge, and tells the user what became of it.
  [[nodiscard]] EmailSaveOutcome save(const EmailPreferences& preferences) const;

 private:
  [[nodiscard]] EmailSaveOutcome ask(const EmailPreferences& preferences) const;

  AccountServices services_;
};

}  // namespace parlexo
