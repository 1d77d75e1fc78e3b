// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/store_result.h"

#include "base/notifier.h"

namespace parlexo {

QString StoreError::message() const {
  switch (operation) {
    case Operation::CreatePersonalGroup:
      return tr("Can't create the personal contacts database: %1 Error=%2").arg(path, details);
    case Operation::ReadFile:
      return tr("There was a problem connecting to the database. Please ensure you can connect to the "
                "database storage location. Error=%1")
          .arg(details);
    case Operation::SaveContact:
      return tr("There was a problem trying to save your contact to the database. Error=%1").arg(details);
    case Operation::SaveMember:
      return tr("There was a problem saving your contact to the database group. Error=%1").arg(details);
    case Operation::DeleteRecord:
      return tr("There was a problem deleting a contact from your database. Error=%1").arg(details);
    case Operation::CreateGroup:
      return tr("There was a problem trying to create your group in the database Error=%1").arg(details);
    case Operation::RemoveGroup:
      return tr("There was a problem trying to delete your group from the database");
  }
  Q_UNREACHABLE();
}

void showError(const StoreError& error, Notifier& notifier) {
  // Loading continues without the personal group, so that message has no error icon.
  const bool isPlain = error.operation == StoreError::Operation::CreatePersonalGroup;
  notifier.show(error.message(), isPlain ? message_style::ok : message_style::stop);
}

}  // namespace parlexo
