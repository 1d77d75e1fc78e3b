// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QIcon>
#include <QMargins>
#include <QSize>

class QApplication;
class QWidget;

namespace parlexo {

/// The appearance shared by all windows: colours, margins and spacings.
namespace look {
/// Light-blue palette. `text` is readable on every background and `selectedText` on `selection`, with a
/// contrast of at least 4.5:1.
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

/// Margins around a layout, in device-independent pixels: left, top, right, bottom.
inline constexpr QMargins pageMargins(14, 10, 14, 12);      ///< of a page of the main window
inline constexpr QMargins tallPageMargins(14, 14, 14, 12);  ///< of a page that begins with a text or a list
inline constexpr QMargins dialogMargins(16, 14, 16, 14);
inline constexpr QMargins progressBoxMargins(12, 8, 14, 8);

/// Distances inside a layout, in device-independent pixels.
inline constexpr int lineSpacing = 2;       ///< between lines of text that belong together
inline constexpr int captionSpacing = 4;    ///< between a caption and the control below it
inline constexpr int controlSpacing = 6;    ///< between controls that belong together
inline constexpr int fieldSpacing = 8;      ///< between the rows of a dialog with many fields
inline constexpr int rowSpacing = 10;       ///< between the rows of a page or dialog
inline constexpr int columnSpacing = 12;    ///< between columns, and between fields in a row
inline constexpr int questionSpacing = 12;  ///< between the rows of a dialog that asks one question
inline constexpr int sectionSpacing = 14;   ///< between sections of a page
inline constexpr int choiceSpacing = 16;    ///< between the two halves of a choice, such as date and time
inline constexpr int groupSpacing = 24;     ///< between groups of controls in a row

/// Width of a line edit beyond that of its text, in device-independent pixels.
inline constexpr int fieldPadding = 16;
}  // namespace look

/// Sets the style, palette, font, tooltip colours and icon of the whole program. Must be called once, before
/// the first window is created.
void applyLook(QApplication& application);

/// Returns the program's icon in sizes from 16 to 256 pixels.
[[nodiscard]] QIcon programIcon();

/// Converts a size in dialog units to pixels. A horizontal unit is a quarter of the average character width
/// of `widget`'s font, a vertical unit an eighth of its height.
[[nodiscard]] QSize dialogUnits(const QWidget& widget, int width, int height);

}  // namespace parlexo
