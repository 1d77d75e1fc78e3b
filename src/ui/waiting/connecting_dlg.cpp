// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/waiting/connecting_dlg.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>

#include "ui/input_block.h"
#include "ui/look.h"
#include "ui/picture_button.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {

using namespace Qt::StringLiterals;

CConnectingDlg::CConnectingDlg(QWidget* parent) : GradientDialog(parent) {
  setObjectName(u"connectingDlg"_s);
  setWindowFlag(Qt::FramelessWindowHint);
  setWindowModality(Qt::ApplicationModal);
  label_ = new QLabel(defaultText(), this);
  label_->setObjectName(u"text"_s);
  label_->setTextFormat(Qt::PlainText);
  detail_ = new QLabel(this);
  detail_->setObjectName(u"detail"_s);
  detail_->setTextFormat(Qt::PlainText);
  detail_->hide();
  cancel_ = new PictureButton(tr("Cancel"), this);
  cancel_->setObjectName(u"cancel"_s);
  cancel_->hide();
  connect(cancel_, &PictureButton::clicked, this, &CConnectingDlg::cancel);
  // A single layout: nested ones would process a change of the text size too late.
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(look::progressBoxMargins);
  grid->setHorizontalSpacing(look::columnSpacing);
  grid->setVerticalSpacing(look::lineSpacing);
  grid->addWidget(createConnectingAnimation(this), 0, 0, 4, 1);
  grid->addWidget(label_, 1, 1);
  grid->addWidget(detail_, 2, 1);
  grid->addWidget(cancel_, 0, 2, 4, 1, Qt::AlignVCenter);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(0, 1);
  grid->setRowStretch(3, 1);
  setMinimumSize(dialogUnits(*this, 194, 38));
  InputBlock::exempt(*this);
}

QString CConnectingDlg::defaultText() {
  return tr("Connecting to the Parlexo gateway.");
}

QString CConnectingDlg::text() const {
  return label_->text();
}

void CConnectingDlg::setText(const QString& text) {
  label_->setText(text.isEmpty() ? defaultText() : text);
  growToFit();
}

void CConnectingDlg::setDetail(const QString& detail) {
  detail_->setText(detail);
  detail_->setVisible(!detail.isEmpty());
  growToFit();
}

void CConnectingDlg::offerCancel() {
  if (!cancel_->isHidden()) return;
  cancel_->show();
  growToFit();
}

void CConnectingDlg::reject() {
  cancel();
}

void CConnectingDlg::cancel() {
  if (cancel_->isHidden() || !cancel_->isEnabled()) return;
  cancel_->setEnabled(false);
  Q_EMIT cancelled();
}

void CConnectingDlg::growToFit() {
  const QSize needed = sizeHint();
  if (needed.width() > minimumWidth()) setMinimumWidth(needed.width());
}

void CConnectingDlg::paintEvent(QPaintEvent* event) {
  GradientDialog::paintEvent(event);
  QPainter painter(this);
  painter.setPen(QPen(look::selection, 1));
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void CConnectingDlg::closeEvent(QCloseEvent* event) {
  event->ignore();
}

}  // namespace parlexo
