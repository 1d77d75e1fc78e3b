// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace parlexo {

class Gateway;
class Notifier;
class Progress;
class Settings;
struct RunState;

/// The dependencies of the account flows and pages. The application owns them; they outlive all pages.
struct AccountServices {
  const RunState& state;
  Settings& settings;
  const Gateway& gateway;
  Notifier& notifier;
  Progress& progress;
};

}  // namespace parlexo
