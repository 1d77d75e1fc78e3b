// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace parlexo {

class Gateway;
class Notifier;
class Progress;
class Settings;
struct RunState;

/// What the account pages and flows work with. The application owns it all and keeps it alive longer than
/// any page.
struct AccountServices {
  const RunState& state;
  Settings& settings;
  const Gateway& gateway;
  Notifier& notifier;
  Progress& progress;
};

}  // namespace parlexo
