// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/banner.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "ui/look.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor nameColour(16, 74, 128);
constexpr int waveCount = 5;

QFont nameFont(const QWidget& widget) {
  QFont font = widget.font();
  font.setPointSizeF(font.pointSizeF() * 1.9);
  font.setBold(true);
  return font;
}

QPainterPath speechBubble(const QRectF& body) {
  QPainterPath path;
  path.addRoundedRect(body, body.height() * 0.3, body.height() * 0.3);
  QPainterPath tail;
  tail.moveTo(body.left() + body.width() * 0.25, body.bottom() - 2);
  tail.lineTo(body.left() + body.width() * 0.2, body.bottom() + body.height() * 0.28);
  tail.lineTo(body.left() + body.width() * 0.52, body.bottom() - 2);
  return path.united(tail);
}

void drawBubble(QPainter& painter, const QRectF& body) {
  QLinearGradient fill(body.topLeft(), body.bottomLeft());
  fill.setColorAt(0, QColor(86, 170, 228));
  fill.setColorAt(1, look::selection);
  painter.setPen(Qt::NoPen);
  painter.setBrush(fill);
  painter.drawPath(speechBubble(body));
  painter.setBrush(Qt::white);
  const qreal dot = body.height() * 0.16;
  for (int i = -1; i <= 1; ++i)
    painter.drawEllipse(QPointF(body.center().x() + i * body.width() * 0.24, body.center().y()), dot / 1.6,
                        dot / 1.6);
}

// Draws concentric arcs that fade with the distance, like a radio signal.
void drawWaves(QPainter& painter, QPointF source, qreal step) {
  painter.setBrush(Qt::NoBrush);
  for (int i = 1; i <= waveCount; ++i) {
    QColor colour = look::border;
    colour.setAlphaF(static_cast<float>(1.0 - 0.17 * i));
    painter.setPen(QPen(colour, 2.2, Qt::SolidLine, Qt::RoundCap));
    const qreal radius = step * i;
    painter.drawArc(QRectF(source.x() - radius, source.y() - radius, 2 * radius, 2 * radius), -32 * 16,
                    64 * 16);
  }
}

}  // namespace

Banner::Banner(QWidget* parent) : QWidget(parent) {
  setObjectName(u"banner"_s);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize Banner::sizeHint() const {
  const QFontMetrics metrics(nameFont(*this));
  return {metrics.horizontalAdvance(u"Parlexo"_s) + 4 * metrics.height(), metrics.height() * 3 / 2};
}

void Banner::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal unit = height() / 3.0;
  const QRectF bubble(unit * 0.3, unit * 0.45, unit * 2.3, unit * 1.65);
  drawBubble(painter, bubble);

  painter.setFont(nameFont(*this));
  painter.setPen(nameColour);
  const QRectF nameRect(bubble.right() + unit * 0.6, 0, width(), height());
  QRectF drawn;
  painter.drawText(nameRect, Qt::AlignLeft | Qt::AlignVCenter, u"Parlexo"_s, &drawn);
  drawWaves(painter, QPointF(drawn.right() + unit * 0.1, height() / 2.0), unit * 0.62);
}

}  // namespace parlexo
