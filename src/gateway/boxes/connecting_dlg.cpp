#include "gateway/boxes/connecting_dlg.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include "gateway/boxes/animated_picture.h"
#include "ui/look.h"

namespace parlexo {

CConnectingDlg::CConnectingDlg(QWidget* parent) : GradientDialog(parent) {
  setObjectName(QStringLiteral("connectingDlg"));
  setWindowFlag(Qt::FramelessWindowHint);
  setWindowModality(Qt::ApplicationModal);
  auto* animation = new CAnimatedPicture(this);
  animation->setObjectName(QStringLiteral("animation"));
  animation->loadFromResource(QString::fromLatin1(connectingAnimation));
  animation->start();
  label_ = new QLabel(defaultText(), this);
  label_->setObjectName(QStringLiteral("text"));
  label_->setTextFormat(Qt::PlainText);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(12, 8, 14, 8);
  row->setSpacing(12);
  row->addWidget(animation);
  row->addWidget(label_, 1);
  setMinimumSize(dialogUnits(*this, 194, 38));
}

QString CConnectingDlg::defaultText() {
  return QStringLiteral("Connecting to the Parlexo gateway.");
}

QString CConnectingDlg::text() const {
  return label_->text();
}

void CConnectingDlg::setText(const QString& text) {
  label_->setText(text.isEmpty() ? defaultText() : text);
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
