#include "app/main_tabs.h"

#include "account/screens/account_history_dlg.h"
#include "account/screens/receive_messages_dlg.h"
#include "account/screens/settings_dlg.h"
#include "addressbook/screens/contacts_page.h"
#include "messaging/screens/fax_dlg.h"
#include "messaging/screens/mms_dlg.h"
#include "messaging/screens/send_page.h"
#include "messaging/screens/sms_dlg.h"
#include "messaging/screens/status_dlg.h"
#include "messaging/screens/wap_dlg.h"

namespace parlexo {

namespace {

const QString statusTab = QStringLiteral("Status");

// The visible tab stays: whoever has just sent a message may want to write the next one.
void showSentMessages(SendPage& page, CStatusDlg& status) {
  QObject::connect(&page, &SendPage::messageSent, &status, &CStatusDlg::selectType);
}

void openStatusOnRequest(SendPage& page, CStatusDlg& status, CMainDlg& window) {
  QObject::connect(&page, &SendPage::statusRequested, &window, [&status, &window](const QString& type) {
    status.selectType(type);
    window.openTab(statusTab);
  });
}

}  // namespace

std::vector<MainTab> mainTabs(const MessagingServices& services,
                              const AddressBookServices& addressBookServices,
                              const AccountServices& accountServices) {
  return {
      {QStringLiteral("SMS"), [services] { return new CQuillonSMSDlg(services); }},
      {QStringLiteral("WAP"), [services] { return new CQuillonWAPDlg(services); }},
      {QStringLiteral("MMS"), [services] { return new CQuillonMMSDlg(services); }},
      {QStringLiteral("Fax"), [services] { return new CQuillonFaxDlg(services); }},
      {QStringLiteral("Receive Messages"),
       [accountServices] { return new CReceiveMessagesDlg(accountServices.state); }},
      {QStringLiteral("Contacts"), [addressBookServices] { return new CContactsPage(addressBookServices); }},
      {QStringLiteral("Account History"),
       [accountServices] { return new CAccountHistoryDlg(accountServices); }},
      {statusTab, [services] { return new CStatusDlg(services); }},
      {QStringLiteral("Settings"), [accountServices] { return new CSettingsDlg(accountServices); }}};
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
