// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/flat_scroll_bar.h"

#include <algorithm>

#include <QPainter>
#include <QStyleOptionSlider>

#include "ui/look.h"

namespace parlexo::flat_scroll_bar {

namespace {

bool isHorizontal(const QStyleOptionSlider& bar) {
  return bar.orientation == Qt::Horizontal;
}

int length(const QStyleOptionSlider& bar) {
  return isHorizontal(bar) ? bar.rect.width() : bar.rect.height();
}

int thumbLength(const QStyleOptionSlider& bar) {
  const int groove = length(bar);
  const qint64 range = qint64(bar.maximum) - bar.minimum;
  if (range <= 0) return groove;
  const qint64 proportional = qint64(groove) * bar.pageStep / (range + bar.pageStep);
  return std::clamp(int(proportional), std::min(shortestThumb, groove), groove);
}

/// The part of the bar that starts at `from` and is `extent` long, both in pixels along the bar.
QRect section(const QStyleOptionSlider& bar, int from, int extent) {
  const QRect along = isHorizontal(bar) ? QRect(bar.rect.x() + from, bar.rect.y(), extent, bar.rect.height())
                                        : QRect(bar.rect.x(), bar.rect.y() + from, bar.rect.width(), extent);
  return QStyle::visualRect(isHorizontal(bar) ? bar.direction : Qt::LeftToRight, bar.rect, along);
}

QColor thumbColor(const QStyleOptionSlider& bar) {
  if (!(bar.state & QStyle::State_Enabled)) return look::gradientBottom;
  const bool onThumb = bar.activeSubControls & QStyle::SC_ScrollBarSlider;
  if (onThumb && (bar.state & QStyle::State_Sunken)) return look::selection;
  if (onThumb && (bar.state & QStyle::State_MouseOver)) return look::selection.lighter(130);
  return look::border;
}

}  // namespace

QRect partRect(const QStyleOptionSlider& bar, QStyle::SubControl part) {
  const int thumb = thumbLength(bar);
  const int travel = length(bar) - thumb;
  const int start =
      QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, travel, bar.upsideDown);
  if (part == QStyle::SC_ScrollBarGroove) return bar.rect;
  if (part == QStyle::SC_ScrollBarSlider) return section(bar, start, thumb);
  if (part == QStyle::SC_ScrollBarSubPage) return section(bar, 0, start);
  if (part == QStyle::SC_ScrollBarAddPage) return section(bar, start + thumb, travel - start);
  return {};
}

void draw(const QStyleOptionSlider& bar, QPainter& painter) {
  painter.fillRect(bar.rect, look::dialogBackground);
  if (bar.maximum <= bar.minimum) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(thumbColor(bar));
  const QRectF thumb = QRectF(partRect(bar, QStyle::SC_ScrollBarSlider)).adjusted(3, 3, -3, -3);
  const qreal radius = std::min(thumb.width(), thumb.height()) / 2;
  painter.drawRoundedRect(thumb, radius, radius);
  painter.restore();
}

}  // namespace parlexo::flat_scroll_bar
