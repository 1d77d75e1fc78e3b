// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/core/account_services.h"
#include "tests/support/logged_in_rig.h"

namespace parlexo::test {

/// A logged-in account with the services of the account pages.
class AccountRig : public LoggedInRig {
 public:
  [[nodiscard]] AccountServices services() { return {state, settings, gateway, notifier, progress}; }
};

}  // namespace parlexo::test
