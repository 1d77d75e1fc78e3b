// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "account/core/account_services.h"
#include "addressbook/core/addressbook_services.h"
#include "app/main_dlg.h"
#include "messaging/core/messaging_services.h"

namespace parlexo {

/// The pages of the main window, in the order of its tabs. What the services refer to must outlive the
/// window.
[[nodiscard]] std::vector<MainTab> mainTabs(const MessagingServices& services,
                                            const AddressBookServices& addressBookServices,
                                            const AccountServices& accountServices);

/// Connects what happens on one page of `window` to what another one shows.
void connectPages(CMainDlg& window);

}  // namespace parlexo
