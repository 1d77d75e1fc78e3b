// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOptionSlider;

namespace parlexo {

/// Geometry and painting of thin scroll bars without arrow buttons: a pale groove and a rounded light-blue
/// thumb that darkens on hover. LookStyle uses them for all scroll bars.
namespace flat_scroll_bar {

inline constexpr int thickness = 13;      ///< pixels across the bar
inline constexpr int shortestThumb = 28;  ///< pixels along the bar; a shorter thumb is hard to grab

/// Returns the rectangle of a part of the bar; empty for parts that a flat bar does not have.
[[nodiscard]] QRect partRect(const QStyleOptionSlider& bar, QStyle::SubControl part);

void draw(const QStyleOptionSlider& bar, QPainter& painter);

}  // namespace flat_scroll_bar
}  // namespace parlexo
