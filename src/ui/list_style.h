// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QAbstractItemView;
class QString;
class QWidget;

namespace parlexo {

/// Gives a list, table or tree the program's look: light ground, whole rows selected and some room between
/// them, flat left-bound header, no grid. Tab leaves a table instead of walking its cells.
void styleList(QAbstractItemView& view);

/// The width in pixels of a column that is `usual` pixels wide, or wider where the font of `list` needs more
/// for `widest`, the longest text that must never be cut off.
[[nodiscard]] int fittingColumnWidth(const QWidget& list, int usual, const QString& widest);

}  // namespace parlexo
