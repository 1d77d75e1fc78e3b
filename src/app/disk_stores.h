// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/core/start_up.h"
#include "app/pumping_lock_waiter.h"
#include "base/notifier.h"
#include "base/progress.h"
#include "base/settings.h"
#include "contacts/address_book.h"
#include "contacts/item_database.h"
#include "contacts/item_index_cache.h"
#include "messaging/core/status_file.h"
#include "messaging/core/status_log.h"
#include "messaging/core/template.h"

namespace parlexo {

/// Owns the data that is stored on disk: the address book with its database, the status log and the message
/// templates.
class DiskStores final : public RunStores {
 public:
  /// Uses the folders that `settings` has at this moment; changes take effect at the next start. The other
  /// arguments must outlive this object.
  DiskStores(Settings& settings, Notifier& notifier, Progress& progress);

  [[nodiscard]] bool loadContacts() override;
  void loadStatusLog() override;
  void releaseContacts() override;
  /// Does nothing if the log was never loaded, as that would overwrite the file with an empty one.
  void saveStatusLog() override;

  [[nodiscard]] AddressBook& addressBook() { return addressBook_; }
  [[nodiscard]] StatusLog& statusLog() { return statusLog_; }
  [[nodiscard]] StatusFile& statusFile() { return statusFile_; }
  [[nodiscard]] const TemplateFolder& templates() const { return templates_; }

 private:
  Notifier& notifier_;
  Progress& progress_;
  PumpingLockWaiter waiter_{progress_};
  ItemIndexCache indexes_;
  ItemDatabase database_{indexes_, waiter_};
  AddressBook addressBook_;
  StatusLog statusLog_;
  StatusFile statusFile_;
  TemplateFolder templates_;
  bool statusLogIsLoaded_ = false;
};

}  // namespace parlexo
