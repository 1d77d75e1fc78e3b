// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/waiting/progress_box.h"

#include <utility>

#include <QCoreApplication>
#include <QEventLoop>
#include <QScreen>

#include "base/data_size.h"
#include "ui/gradient_page.h"

namespace parlexo {

namespace {

constexpr qint64 repaintInterval = 30;  // milliseconds
constexpr std::chrono::milliseconds transferInterval{100};

// Window managers place a frameless window without a parent in a corner.
void centreOnScreen(QWidget& box) {
  box.adjustSize();
  box.move(box.screen()->availableGeometry().center() - box.rect().center());
}

void processPendingEvents() {
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
    // The parent window may destroy the box before hide() is called.
    QObject::connect(box_, &QObject::destroyed, box_, [this] { block_.reset(); });
    if (!text.isEmpty()) box_->setText(text);
    if (!box_->parentWidget()) centreOnScreen(*box_);
    sinceFirstTask_.invalidate();
    untilCancel_.reset();
    isOffered_ = false;
    isCancelled_ = false;
  }
  box_->show();
  box_->raise();
  box_->activateWindow();
  sinceRepaint_.start();
  processPendingEvents();
}

void ProgressBox::setText(const QString& text) {
  if (!box_) return;
  box_->setText(text);
  if (sinceRepaint_.elapsed() < repaintInterval) return;
  sinceRepaint_.restart();
  processPendingEvents();
}

void ProgressBox::setTransfer(const Transfer& transfer) {
  if (!box_) return;
  transferTimer_.disconnect();
  QObject::connect(&transferTimer_, &QTimer::timeout, box_, [this, transfer] { showTransfer(transfer); });
  transferTimer_.start(transferInterval);
}

void ProgressBox::showTransfer(const Transfer& transfer) {
  box_->setDetail(tr("%1 of %2 sent").arg(dataSizeText(transfer.done()), dataSizeText(transfer.total())));
}

void ProgressBox::offerCancelAfter(std::chrono::milliseconds wait) {
  if (box_) untilCancel_ = wait;
}

void ProgressBox::hide() {
  if (!box_) return;
  // Input during blocking work is still in the event queue and must be discarded.
  processPendingEvents();
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
  if (!sinceFirstTask_.isValid()) sinceFirstTask_.start();
  return std::chrono::milliseconds(sinceFirstTask_.elapsed());
}

std::chrono::milliseconds ProgressBox::untilCancel(std::chrono::milliseconds defaultValue) const {
  return untilCancel_.value_or(defaultValue);
}

void ProgressBox::remove() {
  transferTimer_.stop();
  delete box_.data();
}

}  // namespace parlexo
