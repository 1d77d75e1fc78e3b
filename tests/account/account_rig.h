// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTemporaryDir>

#include "account/core/account_services.h"
#include "base/settings.h"
#include "tests/support/logged_in_rig.h"

namespace parlexo {

/// Everything that the account pages work with.
class AccountRig : public LoggedInRig {
 public:
  [[nodiscard]] AccountServices services() { return {state, settings, gateway, notifier, progress()}; }

  QTemporaryDir folder;
  Settings settings{folder.path()};
};

}  // namespace parlexo
