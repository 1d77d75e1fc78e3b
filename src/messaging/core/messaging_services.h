// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace parlexo {

class AddressBook;
class Gateway;
class Notifier;
class Progress;
class SessionRenewal;
class Settings;
class StatusFile;
class StatusLog;
class TemplateFolder;
struct RunState;

/// What the messaging pages and flows work with. The application owns it all and keeps it alive longer
/// than any page.
struct MessagingServices {
  RunState& state;  ///< pages change the sender ID in it, and nothing else
  const Gateway& gateway;
  Notifier& notifier;
  Progress& progress;
  SessionRenewal& renewal;
  const AddressBook& addressBook;
  StatusLog& statusLog;
  StatusFile& statusFile;
  const TemplateFolder& templates;
  Settings& settings;
};

}  // namespace parlexo
