// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace parlexo {

class AddressBook;
class CallRunner;
class Notifier;
class Progress;
class Settings;

/// What the address book's page and dialogs work with. The application owns it all and keeps it alive
/// longer than any page.
struct AddressBookServices {
  AddressBook& book;
  Notifier& notifier;
  Progress& progress;
  Settings& settings;
  CallRunner& runner;  ///< for reading files that others may hold or that are large
};

}  // namespace parlexo
