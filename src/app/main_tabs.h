// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "account/core/account_services.h"
#include "addressbook/core/addressbook_services.h"
#include "app/main_dlg.h"
#include "messaging/core/messaging_services.h"

namespace parlexo {

/// Returns the tabs of the main window in their order. The services must refer to objects that outlive the
/// window.
[[nodiscard]] std::vector<MainTab> createMainTabs(const MessagingServices& services,
                                                  const AddressBookServices& addressBookServices,
                                                  const AccountServices& accountServices);

/// Connects the send pages of `window` with its status page.
void connectPages(CMainDlg& window);

}  // namespace parlexo
