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
  const QString oldUser = services_.state.userName;
  if (!logIn() || !mainWindow_ || services_.state.userName == oldUser) return;
  mainWindow_->setUserName(services_.state.userName);
  // The displayed balance is that of the old user.
  mainWindow_->setBalance(balance_.refresh().value_or(QString()));
}

void ProgramScreens::runMainWindow() {
  CMainDlg window(tabs());
  connectPages(window);
  const QScopedValueRollback<CMainDlg*> scope(mainWindow_, &window);
  window.setUserName(services_.state.userName);
  window.setBalance(balance_.run());
  services_.progress.hide();
  QObject::connect(&window, &CMainDlg::refreshRequested, &window, [&] { refreshBalance(window); });
  NewsAnnouncement announcement(window);
  QObject::connect(&window, &CMainDlg::opened, &window, [&] {
    fetchNews(services_.background, window, [&](const QString& news) { announcement.announce(news); });
  });
  window.restoreGeometry(services_.settings.windowGeometry());
  // When the user logs off from the computer, the program is ended without closing this window.
  QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, &window, [&] {
    services_.stores.saveStatusLog();
    saveGeometry(window);
  });
  window.run();
  saveGeometry(window);
}

void ProgramScreens::refreshBalance(CMainDlg& window) {
  if (const auto balance = balance_.refresh())
    window.setBalance(*balance);
  else
    window.markBalanceOutdated();
}

void ProgramScreens::saveGeometry(const CMainDlg& window) const {
  services_.settings.setWindowGeometry(window.saveGeometry());
}

std::vector<MainTab> ProgramScreens::tabs() {
  AddressBook& book = services_.stores.addressBook();
  return createMainTabs({.state = services_.state,
                         .gateway = services_.gateway,
                         .notifier = services_.notifier,
                         .progress = services_.progress,
                         .renewal = *this,
                         .addressBook = book,
                         .statusLog = services_.stores.statusLog(),
                         .statusFile = services_.stores.statusFile(),
                         .templates = services_.stores.templates(),
                         .settings = services_.settings},
                        {.book = book,
                         .notifier = services_.notifier,
                         .progress = services_.progress,
                         .settings = services_.settings,
                         .runner = services_.runner},
                        {.state = services_.state,
                         .settings = services_.settings,
                         .gateway = services_.gateway,
                         .notifier = services_.notifier,
                         .progress = services_.progress});
}

}  // namespace parlexo
