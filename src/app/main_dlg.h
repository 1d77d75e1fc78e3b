// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include <QString>

#include "ui/gradient_page.h"

class QLineEdit;
class QTabWidget;
class QVBoxLayout;

namespace parlexo {

class PictureButton;

/// One page of the main window: the text of its tab and what creates it.
struct MainTab {
  QString text;
  std::function<QWidget*()> create;
};

/// The window of the program after the login: tabs, user name, balance, About and Exit. It knows its pages
/// only as widgets. An ordinary window, not a modal dialog: a window manager minimises and maximises only
/// those reliably.
class CMainDlg : public GradientDialog {
  Q_OBJECT

 public:
  /// Creates the pages in the order of `tabs` and owns them. Two tabs must not have the same text.
  explicit CMainDlg(const std::vector<MainTab>& tabs, QWidget* parent = nullptr);

  /// Shows the window and returns when it has closed.
  void run();

  void setUserName(const QString& name);
  /// The amount as text; empty when it is not known.
  void setBalance(const QString& amount);
  /// Greys the amount until the next setBalance().
  void markBalanceOutdated();
  /// Brings the page with this tab text to the front; nothing happens when there is none.
  void openTab(const QString& text);

 Q_SIGNALS:
  /// Once, from the event loop, after the window has become visible.
  void opened();
  /// The user wants the current balance; the page in front refreshes itself.
  void refreshRequested();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool nativeEvent(const QByteArray& type, void* message, qintptr* result) override;

 private:
  void addHeader(QVBoxLayout& column);
  void addTabs(QVBoxLayout& column, const std::vector<MainTab>& tabs);
  void addFooter(QVBoxLayout& column);
  void addShortcuts();
  /// One tab forward (1) or back (-1), round the ends.
  void turnTabs(int steps);
  void refresh();
  void shareExitMnemonic();
  void showAbout();

  QTabWidget* tabs_ = nullptr;
  QLineEdit* userName_ = nullptr;
  QLineEdit* balance_ = nullptr;
  PictureButton* exit_ = nullptr;
  bool hasOpened_ = false;
};

}  // namespace parlexo
