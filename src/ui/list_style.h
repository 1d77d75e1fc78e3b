// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QAbstractItemView;
class QString;
class QWidget;

namespace parlexo {

/// Applies the program's look to a list, table or tree: light background, selection of whole rows, row
/// padding, flat left-aligned header, no grid. In a table, Tab moves to the next control, not the next cell.
void styleList(QAbstractItemView& view);

/// Returns a column width in pixels: `usual`, or more if the font of `list` requires it to show `widest`, the
/// longest text that must not be cut off.
[[nodiscard]] int fittingColumnWidth(const QWidget& list, int usual, const QString& widest);

}  // namespace parlexo
