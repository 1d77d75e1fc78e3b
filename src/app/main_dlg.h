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

/// A tab of the main window: its text and a function that creates its page.
struct MainTab {
  QString text;
  std::function<QWidget*()> create;
};

/// The main window: tabs, user name, balance, About and Exit. It treats its pages as plain widgets. It is not
/// a modal dialog, as window managers don't minimise and maximise those reliably.
class CMainDlg : public GradientDialog {
  Q_OBJECT

 public:
  /// Creates the pages in the order of `tabs` and owns them. Two tabs must not have the same text.
  explicit CMainDlg(const std::vector<MainTab>& tabs, QWidget* parent = nullptr);

  /// Shows the window and returns when it has closed.
  void run();

  void setUserName(const QString& name);
  /// Sets the displayed balance; empty if it is unknown.
  void setBalance(const QString& amount);
  /// Greys out the balance until the next setBalance().
  void markBalanceOutdated();
  /// Opens the tab with this text; a no-op if there is none.
  void openTab(const QString& text);

 Q_SIGNALS:
  /// Emitted once from the event loop, after the window has become visible.
  void opened();
  /// Emitted when the user refreshes the window (F5); the current page refreshes itself.
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
  /// Moves `steps` tabs forward, or back if negative, and wraps around at the ends.
  void switchTab(int steps);
  void refresh();
  void updateExitMnemonic();
  void showAbout();

  QTabWidget* tabs_ = nullptr;
  QLineEdit* userName_ = nullptr;
  QLineEdit* balance_ = nullptr;
  PictureButton* exit_ = nullptr;
  bool hasOpened_ = false;
};

}  // namespace parlexo
