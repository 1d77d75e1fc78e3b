// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/waiting/progress_box.h"

#include <utility>

#include <QCoreApplication>
#include <QEventLoop>
#include <QScreen>

#include "base/data_size.h"
#include "ui/front_window.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 repaintPause = 30;  // milliseconds
constexpr std::chrono::milliseconds transferPause{100};

// Window managers put a frameless box without an owner into a corner.
void centreOnScreen(QWidget& box) {
  box.adjustSize();
  box.move(box.screen()->availableGeometry().center() - box.rect().center());
}

void handleWaitingEvents() {
  QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
}

}  // namespace

ProgressBox::~ProgressBox() {
  remove();
}

void ProgressBox::show(const QString& text) {
  if (!box_) {
    block_ = std::make_unique<InputBlock>();
    box_ = new CConnectingDlg(frontWindow());
    // The box may go before hide() is called: with the window it stands over.
    QObject::connect(box_, &QObject::destroyed, box_, [this] { block_.reset(); });
    if (!text.isEmpty()) box_->setText(text);
    if (!box_->parentWidget()) centreOnScreen(*box_);
    exchanging_.invalidate();
    untilCancel_.reset();
    isOffered_ = false;
    isCancelled_ = false;
  }
  box_->show();
  box_->raise();
  box_->activateWindow();
  sinceRepaint_.start();
  handleWaitingEvents();
}

void ProgressBox::setText(const QString& text) {
  if (!box_) return;
  box_->setText(text);
  if (sinceRepaint_.elapsed() < repaintPause) return;
  sinceRepaint_.restart();
  handleWaitingEvents();
}

void ProgressBox::setTransfer(const Transfer& transfer) {
  if (!box_) return;
  transferTimer_.disconnect();
  QObject::connect(&transferTimer_, &QTimer::timeout, box_, [this, transfer] { showTransfer(transfer); });
  transferTimer_.start(transferPause);
}

void ProgressBox::showTransfer(const Transfer& transfer) {
  box_->setDetail(u"%1 of %2 sent"_s.arg(dataSizeText(transfer.done()), dataSizeText(transfer.total())));
}

void ProgressBox::offerCancelAfter(std::chrono::milliseconds wait) {
  if (box_) untilCancel_ = wait;
}

void ProgressBox::hide() {
  if (!box_) return;
  // What the user pressed during blocking work still waits in the queue; it has to meet the block.
  handleWaitingEvents();
  remove();
}

QString ProgressBox::text() const {
  return box_ ? box_->text() : QString();
}

void ProgressBox::offerCancel(std::function<void()> cancel) {
  if (!box_ || isOffered_) return;
  isOffered_ = true;
  QObject::connect(box_, &CConnectingDlg::cancelled, box_, [this, cancel = std::move(cancel)] {
    isCancelled_ = true;
    cancel();
  });
  box_->offerCancel();
}

std::chrono::milliseconds ProgressBox::sinceFirstTask() {
  if (!exchanging_.isValid()) exchanging_.start();
  return std::chrono::milliseconds(exchanging_.elapsed());
}

std::chrono::milliseconds ProgressBox::untilCancel(std::chrono::milliseconds standard) const {
  return untilCancel_.value_or(standard);
}

void ProgressBox::remove() {
  transferTimer_.stop();
  delete box_.data();
}

}  // namespace parlexo
