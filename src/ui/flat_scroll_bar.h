// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOptionSlider;

namespace parlexo {

/// Thin scroll bars without arrow buttons: a pale groove and a rounded light-blue thumb that darkens under
/// the mouse. The style asks these functions for every scroll bar of the program.
namespace flat_scroll_bar {

inline constexpr int thickness = 13;      ///< pixels across the bar
inline constexpr int shortestThumb = 28;  ///< pixels along the bar, so that it can always be grabbed

/// Where a part lies inside the bar; parts that a flat bar does not have are empty.
[[nodiscard]] QRect partRect(const QStyleOptionSlider& bar, QStyle::SubControl part);

void draw(const QStyleOptionSlider& bar, QPainter& painter);

}  // namespace flat_scroll_bar
}  // namespace parlexo
