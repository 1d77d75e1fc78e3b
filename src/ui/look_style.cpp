// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look_style.h"

#include <algorithm>

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>

#include "ui/flat_scroll_bar.h"
#include "ui/look.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int itemPadding = 4;  // pixels added to the height of a list row
constexpr int focusWidth = 2;   // pixels of the frame around a focused list or edit

void drawOutline(QPainter& painter, const QRectF& frame, qreal radius, const QColor& color, qreal width) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, width));
  painter.setBrush(Qt::NoBrush);
  const qreal inset = width / 2;
  painter.drawRoundedRect(frame.adjusted(inset, inset, -inset, -inset), radius, radius);
  painter.restore();
}

void drawHeaderSection(const QStyleOption& option, QPainter& painter) {
  const QRect& area = option.rect;
  const bool isHighlighted = option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
  painter.fillRect(area, isHighlighted ? look::gradientBottom : look::dialogBackground);
  painter.fillRect(QRect(area.left(), area.bottom(), area.width(), 1), look::border);
  painter.fillRect(QRect(area.right(), area.top() + 3, 1, area.height() - 6), look::border);
}

void drawTab(const QStyleOptionTab& tab, QPainter& painter) {
  const bool isSelected = tab.state & QStyle::State_Selected;
  const bool isHighlighted = tab.state & QStyle::State_MouseOver;
  const QRectF shape = QRectF(tab.rect).adjusted(0.5, isSelected ? 0.5 : 2.5, -0.5, 6);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(tab.rect.adjusted(0, 0, 0, isSelected ? 1 : -1));
  painter.setPen(QPen(look::border, 1));
  painter.setBrush(isSelected      ? look::gradientTop
                   : isHighlighted ? look::dialogBackground
                                   : look::gradientBottom);
  painter.drawRoundedRect(shape, 4, 4);
  if (isSelected)
    painter.fillRect(QRectF(shape.left() + 3, shape.top(), shape.width() - 6, 2), look::selection);
  painter.restore();
}

/// A focus mark inside a selected row must be light, as the row has a dark background.
QColor focusColor(const QStyleOption& option) {
  const auto* mark = qstyleoption_cast<const QStyleOptionFocusRect*>(&option);
  const bool onSelection = mark && mark->backgroundColor == option.palette.color(QPalette::Highlight);
  return onSelection ? look::selectedText : look::focus;
}

}  // namespace

LookStyle::LookStyle() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  if (element == PE_FrameFocusRect) {
    drawOutline(*painter, option->rect, 2, focusColor(*option), 1);
    return;
  }
  if (element == PE_Frame && qobject_cast<const QAbstractScrollArea*>(widget)) {
    const bool hasFocus = option->state & State_HasFocus;
    drawOutline(*painter, option->rect, 2, hasFocus ? look::selection : look::border,
                hasFocus ? focusWidth : 1);
    return;
  }
  if (element == PE_FrameGroupBox) {
    const int title = std::max(pixelMetric(PM_IndicatorHeight, option, widget), option->fontMetrics.height());
    drawOutline(*painter, option->rect.adjusted(0, title + 3, 0, 0), 4, look::border, 1);
    return;
  }
  if (element == PE_PanelScrollAreaCorner) {
    painter->fillRect(option->rect, look::dialogBackground);
    return;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void LookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  if (element == CE_HeaderSection) {
    drawHeaderSection(*option, *painter);
    return;
  }
  if (element == CE_HeaderEmptyArea) {
    painter->fillRect(option->rect, look::dialogBackground);
    return;
  }
  const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
  if (element == CE_TabBarTabShape && tab && tab->shape == QTabBar::RoundedNorth) {
    drawTab(*tab, *painter);
    return;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void LookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control == CC_ScrollBar && bar) {
    flat_scroll_bar::draw(*bar, *painter);
    return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect LookStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control == CC_ScrollBar && bar) return flat_scroll_bar::partRect(*bar, part);
  return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize LookStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const {
  const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  return type == CT_ItemViewItem ? size + QSize(0, itemPadding) : size;
}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  if (metric == PM_ScrollBarExtent) return flat_scroll_bar::thickness;
  if (metric == PM_ScrollBarSliderMin) return flat_scroll_bar::shortestThumb;
  const bool isScrollArea = qobject_cast<const QAbstractScrollArea*>(widget);
  if (metric == PM_DefaultFrameWidth && isScrollArea) return focusWidth;
  if (metric == PM_ScrollView_ScrollBarSpacing) return 0;
  return QProxyStyle::pixelMetric(metric, option, widget);
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* result) const {
  if (hint == SH_ScrollBar_Transient) return 0;
  if (hint == SH_UnderlineShortcut) return 1;
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, result);
}

}  // namespace parlexo
