// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace parlexo {

class AddressBook;
class CallRunner;
class Notifier;
class Progress;
class Settings;

/// The objects used by the address book's page and dialogs. Owned by the application, which outlives them.
struct AddressBookServices {
  AddressBook& book;
  Notifier& notifier;
  Progress& progress;
  Settings& settings;
  CallRunner& runner;  ///< for reading large files and files on slow folders
};

}  // namespace parlexo
