// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_texts.h"
#include "base/notifier.h"
#include "base/session_renewal.h"

namespace parlexo {

/// Tells the user that the session is over and lets them log in again. What failed is not repeated.
inline void renewSession(Notifier& notifier, SessionRenewal& renewal) {
  notifier.error(text(TextId::SessionExpired));
  renewal.logInAgain();
}

}  // namespace parlexo
