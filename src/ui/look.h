// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QIcon>
#include <QSize>

class QApplication;
class QWidget;

namespace parlexo {

/// The light-blue family of colours that every window is made of. Text stands in `text` on all of the
/// backgrounds and in `selectedText` on `selection`, each with a contrast of at least 4.5 to 1.
namespace look {
inline constexpr QColor dialogBackground(214, 239, 255);
inline constexpr QColor listBackground(240, 249, 255);
inline constexpr QColor gradientTop(234, 247, 255);
inline constexpr QColor gradientBottom(190, 226, 250);
inline constexpr QColor text(0, 0, 0);
inline constexpr QColor disabledText(92, 112, 130);
inline constexpr QColor problemText(150, 20, 30);
inline constexpr QColor selection(28, 104, 170);
inline constexpr QColor selectedText(255, 255, 255);
inline constexpr QColor link(0, 78, 156);
inline constexpr QColor border(126, 178, 218);
inline constexpr QColor focus(8, 62, 118);
}  // namespace look

/// Gives the whole program its look: style, palette, font, tooltips, scroll bars and icon. Called once,
/// before the first window.
void applyLook(QApplication& application);

/// The program's icon, from 16 to 256 pixels.
[[nodiscard]] QIcon programIcon();

/// A size in dialog units as pixels: a quarter of the average letter's width and an eighth of the height of
/// the font that `widget` uses.
[[nodiscard]] QSize dialogUnits(const QWidget& widget, int width, int height);

}  // namespace parlexo
