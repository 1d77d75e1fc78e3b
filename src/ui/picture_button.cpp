// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/picture_button.h"

#include <algorithm>

#include <QKeyEvent>
#include <QLinearGradient>
#include <QPainter>
#include <QStyle>

#include "ui/button_accessibility.h"
#include "ui/look.h"

namespace parlexo {

namespace {

constexpr int sideMargin = 12;
constexpr int topMargin = 5;
constexpr int iconGap = 6;
constexpr qreal cornerRadius = 5;

struct Fill {
  QColor top;
  QColor bottom;
  QColor border;
};

Fill normalFill(bool hovered) {
  if (hovered) return {Qt::white, QColor(180, 220, 250), look::selection};
  return {QColor(250, 253, 255), QColor(196, 228, 251), look::border};
}

Fill defaultFill(bool hovered) {
  const QColor base = look::selection;
  return {hovered ? QColor(44, 116, 178) : QColor(40, 112, 174), hovered ? base : QColor(18, 84, 146),
          look::focus};
}

constexpr Fill disabledFill{QColor(228, 241, 251), QColor(214, 232, 246), QColor(176, 204, 226)};

}  // namespace

PictureButton::PictureButton(const QString& text, QWidget* parent) : QAbstractButton(parent) {
  installButtonAccessibility();
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  setText(text);
}

void PictureButton::setDefault(bool isDefault) {
  isDefault_ = isDefault;
  update();
}

QSize PictureButton::contentSize() const {
  QSize size = fontMetrics().size(Qt::TextShowMnemonic, text());
  if (icon().isNull()) return size;
  const int gap = text().isEmpty() ? 0 : iconGap;
  return {size.width() + iconSize().width() + gap, std::max(size.height(), iconSize().height())};
}

QSize PictureButton::minimumSizeHint() const {
  return contentSize() + QSize(2 * sideMargin, 2 * topMargin);
}

QSize PictureButton::sizeHint() const {
  const bool isLong = text().size() > 1;
  const QSize smallest = dialogUnits(*this, isLong ? 50 : 14, 14);
  return minimumSizeHint().expandedTo(smallest);
}

void PictureButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintBackground(painter);
  if (hasFocus()) paintFocus(painter);
  if (isDown()) painter.translate(0, 1);
  paintContent(painter);
}

void PictureButton::paintBackground(QPainter& painter) const {
  Fill fill = isEmphasised() ? defaultFill(underMouse()) : normalFill(underMouse());
  if (!isEnabled()) fill = disabledFill;
  if (isDown() || isChecked()) std::swap(fill.top, fill.bottom);
  QLinearGradient gradient(0, 0, 0, height());
  gradient.setColorAt(0, fill.top);
  gradient.setColorAt(1, fill.bottom);
  painter.setPen(QPen(fill.border, 1));
  painter.setBrush(gradient);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
}

void PictureButton::paintFocus(QPainter& painter) const {
  painter.setPen(QPen(isEmphasised() ? look::selectedText : look::focus, 1.5));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), cornerRadius - 2, cornerRadius - 2);
}

void PictureButton::paintContent(QPainter& painter) const {
  QRect area = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, contentSize(), rect());
  if (!icon().isNull()) {
    const auto mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
    const QSize iconArea(iconSize().width(), area.height());
    const QRect iconRect =
        QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter, iconArea, area);
    icon().paint(&painter, iconRect, Qt::AlignCenter, mode, isChecked() ? QIcon::On : QIcon::Off);
    const QSize textArea(area.width() - iconArea.width() - (text().isEmpty() ? 0 : iconGap), area.height());
    area = QStyle::alignedRect(layoutDirection(), Qt::AlignRight | Qt::AlignVCenter, textArea, area);
  }
  painter.setPen(isEmphasised() ? look::selectedText : isEnabled() ? look::text : look::disabledText);
  painter.drawText(area, Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

void PictureButton::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter) {
    QAbstractButton::keyPressEvent(event);
    return;
  }
  if (!event->isAutoRepeat()) click();
}

}  // namespace parlexo
