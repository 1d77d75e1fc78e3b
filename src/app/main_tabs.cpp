// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_tabs.h"

#include "account/screens/account_history_dlg.h"
#include "account/screens/receive_messages_dlg.h"
#include "account/screens/settings_dlg.h"
#include "addressbook/screens/add_contacts_menu.h"
#include "addressbook/screens/contacts_page.h"
#include "messaging/screens/file_page.h"
#include "messaging/screens/send_page.h"
#include "messaging/screens/sms_dlg.h"
#include "messaging/screens/status_dlg.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

// Also identifies the tab in CMainDlg::openTab().
QString statusTabText() {
  return CMainDlg::tr("Status");
}

// The send page stays open, as the user may want to write another message.
void selectTypeAfterSending(SendPage& page, CStatusDlg& status) {
  QObject::connect(&page, &SendPage::messageSent, &status, &CStatusDlg::selectType);
}

void openStatusOnRequest(SendPage& page, CStatusDlg& status, CMainDlg& window) {
  QObject::connect(&page, &SendPage::statusRequested, &window, [&status, &window](MessageType type) {
    status.selectType(type);
    window.openTab(statusTabText());
  });
}

// Contacts added from a send page are probably its recipients, so they are preselected.
SendPage* connectContactsToAdd(SendPage* page, const AddressBookServices& services) {
  QObject::connect(page, &SendPage::contactsToAdd, page, [page, services](QWidget& button) {
    if (const auto added = addOrImportContacts(services, button)) page->selectContacts(*added);
  });
  return page;
}

template <class Page>
MainTab sendTab(const QString& text, const MessagingServices& services,
                const AddressBookServices& addressBookServices) {
  return {text, [services, addressBookServices] {
            return connectContactsToAdd(new Page(services), addressBookServices);
          }};
}

}  // namespace

std::vector<MainTab> createMainTabs(const MessagingServices& services,
                                    const AddressBookServices& addressBookServices,
                                    const AccountServices& accountServices) {
  return {
      sendTab<CQuillonSMSDlg>(CMainDlg::tr("SMS"), services, addressBookServices),
      sendTab<CQuillonWAPDlg>(CMainDlg::tr("WAP"), services, addressBookServices),
      sendTab<CQuillonMMSDlg>(CMainDlg::tr("MMS"), services, addressBookServices),
      sendTab<CQuillonFaxDlg>(CMainDlg::tr("Fax"), services, addressBookServices),
      {CMainDlg::tr("Receive Messages"),
       [accountServices] { return new CReceiveMessagesDlg(accountServices.state); }},
      {CMainDlg::tr("Contacts"), [addressBookServices] { return new CContactsPage(addressBookServices); }},
      {CMainDlg::tr("Account History"),
       [accountServices] { return new CAccountHistoryDlg(accountServices); }},
      {statusTabText(), [services] { return new CStatusDlg(services); }},
      {CMainDlg::tr("Settings"), [accountServices] { return new CSettingsDlg(accountServices); }}};
}

void connectPages(CMainDlg& window) {
  auto* status = window.findChild<CStatusDlg*>();
  if (!status) return;
  for (auto* page : window.findChildren<SendPage*>()) {
    selectTypeAfterSending(*page, *status);
    openStatusOnRequest(*page, *status, window);
  }
}

}  // namespace parlexo
