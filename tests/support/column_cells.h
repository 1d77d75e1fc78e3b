// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemModel>
#include <QStringList>

namespace parlexo {

/// What a list shows in one of its columns, from top to bottom.
inline QStringList columnCells(const QAbstractItemModel& model, int column) {
  QStringList cells;
  for (int row = 0; row < model.rowCount(); ++row) cells << model.index(row, column).data().toString();
  return cells;
}

}  // namespace parlexo
