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

/// The objects that the messaging pages and flows use. Owned by the application; they outlive every page.
struct MessagingServices {
  RunState& state;  ///< the pages change only its sender ID
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
