// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_dlg.h"

#include <algorithm>
#include <utility>

#include <QEventLoop>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

#include "app/about_dlg.h"
#include "app/banner.h"
#include "app/system_menu.h"
#include "base/message_texts.h"
#include "base/product.h"
#include "ui/hyperlink_label.h"
#include "ui/look.h"
#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QLineEdit* addField(QGridLayout& grid, int row, const QString& name, const QString& labelText) {
  auto* field = new QLineEdit;
  field->setObjectName(name);
  field->setReadOnly(true);
  grid.addWidget(field, row, 1);
  grid.addWidget(labelFor(field, labelText), row, 0);
  return field;
}

/// A page inside a scroll area. Without this between them the area would scroll a page with wrapped texts as
/// soon as it has less than the height that it would like; this asks for the least that it can do with.
class PageHolder final : public QWidget {
 public:
  explicit PageHolder(QWidget* page) : page_(page) { page->setParent(this); }

  [[nodiscard]] QSize sizeHint() const override { return page_->sizeHint(); }
  [[nodiscard]] QSize minimumSizeHint() const override {
    const QSize least = page_->minimumSizeHint().expandedTo(page_->minimumSize());
    const QLayout* layout = page_->layout();
    if (!layout || !layout->hasHeightForWidth()) return least;
    const int width = std::max(least.width(), parentWidget()->width());
    return {least.width(), std::max(least.height(), layout->minimumHeightForWidth(width))};
  }

 protected:
  void resizeEvent(QResizeEvent*) override { page_->resize(size()); }

 private:
  QWidget* page_;
};

// On a screen that has less room than a page needs, what lies beyond the edge can still be reached.
QScrollArea* scrollable(QWidget* page) {
  auto* area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  area->setWidget(new PageHolder(page));
  return area;
}

bool claims(const QWidget& page, const QKeySequence& shortcut) {
  const auto buttons = page.findChildren<QAbstractButton*>();
  return std::any_of(buttons.begin(), buttons.end(),
                     [&shortcut](const QAbstractButton* button) { return button->shortcut() == shortcut; });
}

}  // namespace

CMainDlg::CMainDlg(const std::vector<MainTab>& tabs, QWidget* parent) : GradientDialog(parent) {
  setObjectName(u"mainWindow"_s);
  setWindowTitle(u"Parlexo(TM) : Messaging Client v"_s + QLatin1String(clientVersion));
  setWindowFlags(Qt::Window);
  auto* column = new QVBoxLayout(this);
  addHeader(*column);
  addTabs(*column, tabs);
  addFooter(*column);
  addShortcuts();
  shareExitMnemonic();
  tabs_->setFocus();
  // On a screen smaller than that, Send and Exit must not lie beyond its edge.
  const QMargins titleBar(0, style()->pixelMetric(QStyle::PM_TitleBarHeight), 0, 0);
  resize(dialogUnits(*this, 558, 330).boundedTo(screen()->availableSize().shrunkBy(titleBar)));
}

void CMainDlg::run() {
  QEventLoop loop;
  connect(this, &CMainDlg::finished, &loop, &QEventLoop::quit);
  show();
  loop.exec();
}

void CMainDlg::setUserName(const QString& name) {
  userName_->setText(name);
}

void CMainDlg::setBalance(const QString& amount) {
  balance_->setText(amount);
  balance_->setPalette({});
  balance_->setAccessibleDescription({});
}

void CMainDlg::markBalanceOutdated() {
  QPalette palette = balance_->palette();
  palette.setColor(QPalette::Text, look::disabledText);
  balance_->setPalette(palette);
  balance_->setAccessibleDescription(u"Not up to date"_s);
}

void CMainDlg::openTab(const QString& text) {
  for (int i = 0; i < tabs_->count(); ++i)
    if (tabs_->tabText(i) == text) tabs_->setCurrentIndex(i);
}

void CMainDlg::paintEvent(QPaintEvent* event) {
  GradientDialog::paintEvent(event);
  // Earlier than this the window does not know its place on the screen, and a dialog would not stand over it.
  if (std::exchange(hasOpened_, true)) return;
  addToSystemMenu(*this, text(TextId::AboutMenuEntry));
  QMetaObject::invokeMethod(this, &CMainDlg::opened, Qt::QueuedConnection);
}

void CMainDlg::keyPressEvent(QKeyEvent* event) {
  // A message half written must not go with a slip of the finger: only Exit and the close box end the
  // program.
  if (event->key() != Qt::Key_Escape) GradientDialog::keyPressEvent(event);
}

// Only here are both heard: a choice by mouse, and one by Alt+Space, which Qt does not send to the window.
bool CMainDlg::nativeEvent(const QByteArray& type, void* message, qintptr* result) {
  if (!choosesSystemMenuEntry(message)) return GradientDialog::nativeEvent(type, message, result);
  // A dialog opened at once would run inside the delivery of the system's message.
  QMetaObject::invokeMethod(this, &CMainDlg::showAbout, Qt::QueuedConnection);
  return true;
}

void CMainDlg::addHeader(QVBoxLayout& column) {
  auto* grid = new QGridLayout;
  userName_ = addField(*grid, 0, u"userName"_s, u"User Name:"_s);
  balance_ = addField(*grid, 1, u"balance"_s, u"Account Balance: "_s);
  grid->addWidget(new QLabel(u"(in your account's base currency)"_s), 1, 2);
  auto* row = new QHBoxLayout;
  row->addWidget(new Banner, 1);
  row->addLayout(grid);
  column.addLayout(row);
}

void CMainDlg::addTabs(QVBoxLayout& column, const std::vector<MainTab>& tabs) {
  tabs_ = new QTabWidget;
  tabs_->setObjectName(u"tabs"_s);
  for (const auto& tab : tabs) tabs_->addTab(scrollable(tab.create()), tab.text);
  connect(tabs_, &QTabWidget::currentChanged, this, &CMainDlg::shareExitMnemonic);
  column.addWidget(tabs_, 1);
}

void CMainDlg::addFooter(QVBoxLayout& column) {
  auto* about = new HyperlinkLabel(u"About"_s);
  about->setObjectName(u"about"_s);
  connect(about, &HyperlinkLabel::clicked, this, &CMainDlg::showAbout);
  exit_ = new PictureButton(u"&Exit"_s);
  exit_->setObjectName(u"exit"_s);
  connect(exit_, &PictureButton::clicked, this, &CMainDlg::accept);
  auto* row = new QHBoxLayout;
  row->addWidget(about);
  row->addStretch();
  row->addWidget(exit_);
  column.addLayout(row);
}

void CMainDlg::addShortcuts() {
  auto* quit = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q), this);
  connect(quit, &QShortcut::activated, this, &CMainDlg::accept);
  auto* help = new QShortcut(QKeySequence(Qt::Key_F1), this);
  connect(help, &QShortcut::activated, this, &CMainDlg::showAbout);
  auto* refreshing = new QShortcut(QKeySequence(Qt::Key_F5), this);
  connect(refreshing, &QShortcut::activated, this, &CMainDlg::refresh);
  for (int i = 0; i < std::min(tabs_->count(), 9); ++i) {
    auto* tab = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + i)), this);
    connect(tab, &QShortcut::activated, this, [this, i] { tabs_->setCurrentIndex(i); });
  }
  // The tab widget would hear these only while the focus is on one of its pages.
  auto* next = new QShortcut(QKeySequence::NextChild, this);
  connect(next, &QShortcut::activated, this, [this] { turnTabs(1); });
  auto* previous = new QShortcut(QKeySequence::PreviousChild, this);
  connect(previous, &QShortcut::activated, this, [this] { turnTabs(-1); });
}

void CMainDlg::turnTabs(int steps) {
  tabs_->setCurrentIndex((tabs_->currentIndex() + steps + tabs_->count()) % tabs_->count());
}

void CMainDlg::refresh() {
  Q_EMIT refreshRequested();
  const QWidget* front = tabs_->currentWidget();
  if (auto* page = front ? front->findChild<GradientPage*>() : nullptr) page->refresh();
}

// Where the visible page has a button of the same mnemonic ("S&end >"), the key is the page's.
void CMainDlg::shareExitMnemonic() {
  const QKeySequence mnemonic = QKeySequence::mnemonic(exit_->text());
  const QWidget* page = tabs_->currentWidget();
  exit_->setShortcut(page && claims(*page, mnemonic) ? QKeySequence() : mnemonic);
}

void CMainDlg::showAbout() {
  CAboutDlg(this).exec();
}

}  // namespace parlexo
