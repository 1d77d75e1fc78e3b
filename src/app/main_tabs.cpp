#include "app/main_tabs.h"

#include "app/empty_page.h"

namespace parlexo {

std::vector<MainTab> mainTabs() {
  std::vector<MainTab> tabs;
  for (const char* name : {"SMS", "WAP", "MMS", "Fax", "Receive Messages", "Contacts", "Account History",
                           "Status", "Settings"}) {
    const QString text = QString::fromLatin1(name);
    tabs.push_back({text, [text] { return createEmptyPage(text); }});
  }
  return tabs;
}

}  // namespace parlexo
