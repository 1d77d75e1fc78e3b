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

const QString statusTab = u"Status"_s;

// The visible tab stays: whoever has just sent a message may want to write the next one.
void showSentMessages(SendPage& page, CStatusDlg& status) {
  QObject::connect(&page, &SendPage::messageSent, &status, &CStatusDlg::selectType);
}

void openStatusOnRequest(SendPage& page, CStatusDlg& status, CMainDlg& window) {
  QObject::connect(&page, &SendPage::statusRequested, &window, [&status, &window](MessageType type) {
    status.selectType(type);
    window.openTab(statusTab);
  });
}

// What was added is likely meant for the message: it comes ticked where the recipients are chosen anew.
SendPage* addingContacts(SendPage* page, const AddressBookServices& services) {
  QObject::connect(page, &SendPage::contactsToAdd, page, [page, services](QWidget& button) {
    if (const auto added = addOrImportContacts(services, button)) page->selectContacts(*added);
  });
  return page;
}

template <class Page>
MainTab sendTab(const QString& text, const MessagingServices& services,
                const AddressBookServices& addressBookServices) {
  return {text, [services, addressBookServices] {
            return addingContacts(new Page(services), addressBookServices);
          }};
}

}  // namespace

std::vector<MainTab> mainTabs(const MessagingServices& services,
                              const AddressBookServices& addressBookServices,
                              const AccountServices& accountServices) {
  return {
      sendTab<CQuillonSMSDlg>(u"SMS"_s, services, addressBookServices),
      sendTab<CQuillonWAPDlg>(u"WAP"_s, services, addressBookServices),
      sendTab<CQuillonMMSDlg>(u"MMS"_s, services, addressBookServices),
      sendTab<CQuillonFaxDlg>(u"Fax"_s, services, addressBookServices),
      {u"Receive Messages"_s, [accountServices] { return new CReceiveMessagesDlg(accountServices.state); }},
      {u"Contacts"_s, [addressBookServices] { return new CContactsPage(addressBookServices); }},
      {u"Account History"_s, [accountServices] { return new CAccountHistoryDlg(accountServices); }},
      {statusTab, [services] { return new CStatusDlg(services); }},
      {u"Settings"_s, [accountServices] { return new CSettingsDlg(accountServices); }}};
}

void connectPages(CMainDlg& window) {
  auto* status = window.findChild<CStatusDlg*>();
  if (!status) return;
  for (auto* page : window.findChildren<SendPage*>()) {
    showSentMessages(*page, *status);
    openStatusOnRequest(*page, *status, window);
  }
}

}  // namespace parlexo
