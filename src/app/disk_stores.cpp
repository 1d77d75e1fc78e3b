// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/disk_stores.h"

#include <QtGlobal>

namespace parlexo {

DiskStores::DiskStores(Settings& settings, Notifier& notifier, Progress& progress)
    : notifier_(notifier),
      progress_(progress),
      addressBook_(settings.contactsFolder(), database_),
      statusFile_(settings.statusFile()),
      templates_(settings.templatesFolder()) {}

bool DiskStores::loadContacts() {
  return addressBook_.loadAll(progress_, [this](const StoreError& error) { showError(error, notifier_); });
}

void DiskStores::loadStatusLog() {
  statusFile_.load(statusLog_, notifier_);
  statusLogIsLoaded_ = true;
}

void DiskStores::releaseContacts() {
  addressBook_.clear();
  database_.dropAllItemIndexes();
}

void DiskStores::saveStatusLog() {
  if (statusLogIsLoaded_ && !statusFile_.save(statusLog_, StatusFile::IfLocked::WriteAnyway))
    qWarning("The status log could not be written to %s", qUtf8Printable(statusFile_.path()));
}

}  // namespace parlexo
