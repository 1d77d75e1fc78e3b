// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program_screens.h"

#include <QApplication>
#include <QScopedValueRollback>

#include "account/core/news.h"
#include "app/core/login_flow.h"
#include "app/disk_stores.h"
#include "app/login_dlg.h"
#include "app/main_dlg.h"
#include "app/main_tabs.h"
#include "app/news_announcement.h"
#include "connection/screens/upgrade_dlg.h"
#include "ui/gradient_page.h"

namespace parlexo {

void ProgramScreens::showUpgrade(const QString& version) {
  CUpgradeDlg(version, frontWindow()).exec();
}

bool ProgramScreens::logIn() {
  LoginFlow flow(services_.state, services_.settings, services_.gateway, services_.notifier);
  CLoginDlg dialog(flow, services_.settings.rememberedUser(), mainWindow_);
  return dialog.exec() == QDialog::Accepted;
}

void ProgramScreens::logInAgain() {
  const QString before = services_.state.userName;
  if (!logIn() || !mainWindow_ || services_.state.userName == before) return;
  mainWindow_->setUserName(services_.state.userName);
  // The amount that is shown belongs to the other user.
  mainWindow_->setBalance(balance_.refresh().value_or(QString()));
}

void ProgramScreens::runMainWindow() {
  CMainDlg window(tabs());
  connectPages(window);
  const QScopedValueRollback<CMainDlg*> open(mainWindow_, &window);
  window.setUserName(services_.state.userName);
  window.setBalance(balance_.run());
  services_.progress.hide();
  QObject::connect(&window, &CMainDlg::refreshRequested, &window, [&] { refreshBalance(window); });
  NewsAnnouncement announcement(window);
  QObject::connect(&window, &CMainDlg::opened, &window, [&] {
    fetchNews(services_.background, window, [&](const QString& news) { announcement.announce(news); });
  });
  window.restoreGeometry(services_.settings.windowGeometry());
  // Whoever logs off from the computer gets no chance to leave this window first.
  QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, &window, [&] {
    services_.stores.saveStatusLog();
    keepGeometry(window);
  });
  window.run();
  keepGeometry(window);
}

void ProgramScreens::refreshBalance(CMainDlg& window) {
  if (const auto balance = balance_.refresh())
    window.setBalance(*balance);
  else
    window.markBalanceOutdated();
}

void ProgramScreens::keepGeometry(const CMainDlg& window) const {
  services_.settings.setWindowGeometry(window.saveGeometry());
}

std::vector<MainTab> ProgramScreens::tabs() {
  AddressBook& book = services_.stores.addressBook();
  return mainTabs(
      {services_.state, services_.gateway, services_.notifier, services_.progress, *this, book,
       services_.stores.statusLog(), services_.stores.statusFile(), services_.stores.templates(),
       services_.settings},
      {book, services_.notifier, services_.progress, services_.settings, services_.runner},
      {services_.state, services_.settings, services_.gateway, services_.notifier, services_.progress});
}

}  // namespace parlexo
