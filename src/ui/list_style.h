#pragma once

class QAbstractItemView;

namespace parlexo {

/// Gives a list, table or tree the program's look: light ground, whole rows selected and some room between
/// them, flat left-bound header, no grid. Tab leaves a table instead of walking its cells.
void styleList(QAbstractItemView& view);

}  // namespace parlexo
