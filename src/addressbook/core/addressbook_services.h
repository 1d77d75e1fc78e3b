#pragma once

namespace parlexo {

class AddressBook;
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
};

}  // namespace parlexo
