// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/notifier.h"
#include "base/settings.h"

namespace parlexo {

/// Shows every message of the program in the notification dialog, above whatever window is on top, and
/// remembers which ones the user does not want to see again.
class NotificationNotifier final : public Notifier {
 public:
  /// `settings` must outlive the notifier.
  explicit NotificationNotifier(Settings& settings) : settings_(settings) {}

  MessageResult show(const QString& text, unsigned style, int suppressibleNumber = 0) override;

 private:
  Settings& settings_;
};

}  // namespace parlexo
