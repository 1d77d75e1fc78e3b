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
#include "app/platform.h"
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

/// The widget between a scroll area and a page. It requires only the minimum height of a page with wrapped
/// texts; without it, the area would scroll such a page below its preferred height.
class ScrolledPage final : public QWidget {
 public:
  explicit ScrolledPage(QWidget* page) : page_(page) { page->setParent(this); }

  [[nodiscard]] QSize sizeHint() const override { return page_->sizeHint(); }
  [[nodiscard]] QSize minimumSizeHint() const override {
    const QSize minimum = page_->minimumSizeHint().expandedTo(page_->minimumSize());
    const QLayout* layout = page_->layout();
    if (!layout || !layout->hasHeightForWidth()) return minimum;
    const int width = std::max(minimum.width(), parentWidget()->width());
    return {minimum.width(), std::max(minimum.height(), layout->minimumHeightForWidth(width))};
  }

 protected:
  void resizeEvent(QResizeEvent*) override { page_->resize(size()); }

 private:
  QWidget* page_;
};

// Scrolls the page if the screen is too small for it.
QScrollArea* createScrollArea(QWidget* page) {
  auto* area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  area->setWidget(new ScrolledPage(page));
  return area;
}

bool hasShortcut(const QWidget& page, const QKeySequence& shortcut) {
  const auto buttons = page.findChildren<QAbstractButton*>();
  return std::any_of(buttons.begin(), buttons.end(),
                     [&shortcut](const QAbstractButton* button) { return button->shortcut() == shortcut; });
}

}  // namespace

CMainDlg::CMainDlg(const std::vector<MainTab>& tabs, QWidget* parent) : GradientDialog(parent) {
  setObjectName(u"mainWindow"_s);
  setWindowTitle(tr("Parlexo(TM) : Messaging Client v%1").arg(QLatin1String(clientVersion)));
  setWindowFlags(Qt::Window);
  auto* column = new QVBoxLayout(this);
  addHeader(*column);
  addTabs(*column, tabs);
  addFooter(*column);
  addShortcuts();
  updateExitMnemonic();
  tabs_->setFocus();
  // Keeps Send and Exit visible on a small screen.
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
  balance_->setAccessibleDescription(tr("Not up to date"));
}

void CMainDlg::openTab(const QString& text) {
  for (int i = 0; i < tabs_->count(); ++i)
    if (tabs_->tabText(i) == text) tabs_->setCurrentIndex(i);
}

void CMainDlg::paintEvent(QPaintEvent* event) {
  GradientDialog::paintEvent(event);
  // Before the first paint event the window has no position yet, so a dialog could not be centred over it.
  if (std::exchange(hasOpened_, true)) return;
  addToSystemMenu(*this, text(TextId::AboutMenuEntry));
  QMetaObject::invokeMethod(this, &CMainDlg::opened, Qt::QueuedConnection);
}

void CMainDlg::keyPressEvent(QKeyEvent* event) {
  // Escape must not close the program, as an unfinished message would be lost.
  if (event->key() != Qt::Key_Escape) GradientDialog::keyPressEvent(event);
}

// Handled here because Qt does not deliver an entry chosen with Alt+Space to the window.
bool CMainDlg::nativeEvent(const QByteArray& type, void* message, qintptr* result) {
  if (!isSystemMenuEntry(message)) return GradientDialog::nativeEvent(type, message, result);
  // Queued, as the dialog must not run inside the native event handler.
  QMetaObject::invokeMethod(this, &CMainDlg::showAbout, Qt::QueuedConnection);
  return true;
}

void CMainDlg::addHeader(QVBoxLayout& column) {
  auto* grid = new QGridLayout;
  userName_ = addField(*grid, 0, u"userName"_s, tr("User Name:"));
  balance_ = addField(*grid, 1, u"balance"_s, tr("Account Balance: "));
  grid->addWidget(new QLabel(tr("(in your account's base currency)")), 1, 2);
  auto* row = new QHBoxLayout;
  row->addWidget(new Banner, 1);
  row->addLayout(grid);
  column.addLayout(row);
}

void CMainDlg::addTabs(QVBoxLayout& column, const std::vector<MainTab>& tabs) {
  tabs_ = new QTabWidget;
  tabs_->setObjectName(u"tabs"_s);
  for (const auto& tab : tabs) tabs_->addTab(createScrollArea(tab.create()), tab.text);
  connect(tabs_, &QTabWidget::currentChanged, this, &CMainDlg::updateExitMnemonic);
  column.addWidget(tabs_, 1);
}

void CMainDlg::addFooter(QVBoxLayout& column) {
  auto* about = new HyperlinkLabel(tr("About"));
  about->setObjectName(u"about"_s);
  connect(about, &HyperlinkLabel::clicked, this, &CMainDlg::showAbout);
  exit_ = new PictureButton(tr("&Exit"));
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
  auto* refresh = new QShortcut(QKeySequence(Qt::Key_F5), this);
  connect(refresh, &QShortcut::activated, this, &CMainDlg::refresh);
  for (int i = 0; i < std::min(tabs_->count(), 9); ++i) {
    auto* tab = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + i)), this);
    connect(tab, &QShortcut::activated, this, [this, i] { tabs_->setCurrentIndex(i); });
  }
  // The tab widget handles these keys only while one of its pages has the focus.
  auto* next = new QShortcut(QKeySequence::NextChild, this);
  connect(next, &QShortcut::activated, this, [this] { switchTab(1); });
  auto* previous = new QShortcut(QKeySequence::PreviousChild, this);
  connect(previous, &QShortcut::activated, this, [this] { switchTab(-1); });
}

void CMainDlg::switchTab(int steps) {
  tabs_->setCurrentIndex((tabs_->currentIndex() + steps + tabs_->count()) % tabs_->count());
}

void CMainDlg::refresh() {
  Q_EMIT refreshRequested();
  const QWidget* front = tabs_->currentWidget();
  if (auto* page = front ? front->findChild<GradientPage*>() : nullptr) page->refresh();
}

// A button of the current page with the same mnemonic ("S&end >") takes precedence over Exit.
void CMainDlg::updateExitMnemonic() {
  const QKeySequence mnemonic = QKeySequence::mnemonic(exit_->text());
  const QWidget* page = tabs_->currentWidget();
  exit_->setShortcut(page && hasShortcut(*page, mnemonic) ? QKeySequence() : mnemonic);
}

void CMainDlg::showAbout() {
  CAboutDlg(this).exec();
}

}  // namespace parlexo
