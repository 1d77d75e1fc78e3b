// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/message_icon.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "base/notifier.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int iconSize = 36;
constexpr QRectF ground(2, 2, iconSize - 4, iconSize - 4);

QString accessibleIconName(unsigned icon) {
  switch (icon) {
    case message_style::stop:
      return u"Error"_s;
    case message_style::question:
      return u"Question"_s;
    case message_style::exclamation:
      return u"Warning"_s;
    case message_style::information:
      return u"Information"_s;
    default:
      return {};
  }
}

void fill(QPainter& painter, const QPainterPath& shape, QColor colour) {
  QLinearGradient gradient(ground.topLeft(), ground.bottomLeft());
  gradient.setColorAt(0, colour.lighter(125));
  gradient.setColorAt(1, colour);
  painter.setPen(QPen(colour.darker(125), 1));
  painter.setBrush(gradient);
  painter.drawPath(shape);
}

QPainterPath circle() {
  QPainterPath path;
  path.addEllipse(ground);
  return path;
}

QPainterPath triangle() {
  QPainterPath corners;
  corners.moveTo(ground.center().x(), ground.top() + 2);
  corners.lineTo(ground.right() - 1, ground.bottom() - 3);
  corners.lineTo(ground.left() + 1, ground.bottom() - 3);
  corners.closeSubpath();
  return corners;
}

void drawSign(QPainter& painter, const QString& sign, QColor colour, QRectF where) {
  QFont font = painter.font();
  font.setBold(true);
  font.setPixelSize(iconSize * 6 / 10);
  painter.setFont(font);
  painter.setPen(colour);
  painter.drawText(where, Qt::AlignCenter, sign);
}

void drawStop(QPainter& painter) {
  fill(painter, circle(), QColor(200, 40, 44));
  painter.setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap));
  constexpr QRectF cross(12.5, 12.5, iconSize - 25, iconSize - 25);
  painter.drawLine(cross.topLeft(), cross.bottomRight());
  painter.drawLine(cross.topRight(), cross.bottomLeft());
}

void drawExclamation(QPainter& painter) {
  fill(painter, triangle(), QColor(244, 178, 32));
  drawSign(painter, u"!"_s, QColor(60, 40, 0), ground.translated(0, 3));
}

void drawCircled(QPainter& painter, const QString& sign) {
  fill(painter, circle(), QColor(36, 112, 190));
  drawSign(painter, sign, Qt::white, ground);
}

}  // namespace

MessageIcon::MessageIcon(unsigned style, QWidget* parent)
    : QWidget(parent), icon_(style & message_style::iconBits) {
  setObjectName(u"messageIcon"_s);
  setFixedSize(iconSize, iconSize);
  setAccessibleName(accessibleIconName(icon_));
}

void MessageIcon::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (icon_ == message_style::stop) drawStop(painter);
  if (icon_ == message_style::question) drawCircled(painter, u"?"_s);
  if (icon_ == message_style::exclamation) drawExclamation(painter);
  if (icon_ == message_style::information) drawCircled(painter, u"i"_s);
}

}  // namespace parlexo
