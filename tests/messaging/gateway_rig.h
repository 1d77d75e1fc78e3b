// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_texts.h"
#include "messaging/core/messaging_services.h"
#include "messaging/core/status_file.h"
#include "messaging/core/status_log.h"
#include "messaging/core/template.h"
#include "tests/addressbook/sample_book.h"
#include "tests/support/logged_in_rig.h"

namespace parlexo::test {

/// A logged-in account with the services of messaging.
class GatewayRig : public LoggedInRig {
 public:
  using LoggedInRig::LoggedInRig;

  [[nodiscard]] MessagingServices services() {
    return {state, gateway, notifier, progress, renewal(), book.book(), log, file, templates, settings};
  }

  SampleBook book;
  StatusLog log;
  StatusFile file{folder.filePath(QStringLiteral("Status.xml"))};
  TemplateFolder templates{folder.path()};
};

}  // namespace parlexo::test
