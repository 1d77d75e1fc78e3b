#include "app/main_tabs.h"

#include "app/empty_page.h"
#include "messaging/screens/sms_dlg.h"
#include "messaging/screens/status_dlg.h"

namespace parlexo {

namespace {

const QString statusTab = QStringLiteral("Status");

MainTab tabToCome(const QString& text) {
  return {text, [text] { return createEmptyPage(text); }};
}

// The visible tab stays: whoever has just sent a message may want to write the next one.
void showSentMessages(CQuillonSMSDlg& page, CStatusDlg& status) {
  QObject::connect(&page, &CQuillonSMSDlg::messageSent, &status, &CStatusDlg::selectType);
}

void openStatusOnRequest(CQuillonSMSDlg& page, CStatusDlg& status, CMainDlg& window) {
  QObject::connect(&page, &CQuillonSMSDlg::statusRequested, &window, [&status, &window](const QString& type) {
    status.selectType(type);
    window.openTab(statusTab);
  });
}

}  // namespace

std::vector<MainTab> mainTabs(const MessagingServices& services) {
  return {{QStringLiteral("SMS"), [services] { return new CQuillonSMSDlg(services); }},
          tabToCome(QStringLiteral("WAP")),
          tabToCome(QStringLiteral("MMS")),
          tabToCome(QStringLiteral("Fax")),
          tabToCome(QStringLiteral("Receive Messages")),
          tabToCome(QStringLiteral("Contacts")),
          tabToCome(QStringLiteral("Account History")),
          {statusTab, [services] { return new CStatusDlg(services); }},
          tabToCome(QStringLiteral("Settings"))};
}

void connectPages(CMainDlg& window) {
  auto* sms = window.findChild<CQuillonSMSDlg*>();
  auto* status = window.findChild<CStatusDlg*>();
  if (!sms || !status) return;
  showSentMessages(*sms, *status);
  openStatusOnRequest(*sms, *status, window);
}

}  // namespace parlexo
