// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListView>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QStringListModel>

#include "addressbook/core/text_search.h"

namespace parlexo {

/// The list box of one Extra field. A click or the space bar selects or deselects a value. Values hidden by a
/// search stay selected.
class ExtraValueBox final : public QListView {
  Q_OBJECT

 public:
  /// `label` is the accessible name.
  ExtraValueBox(const QStringList& values, const QString& label, QWidget* parent = nullptr);

  /// The chosen values, including hidden ones.
  [[nodiscard]] const QSet<QString>& chosen() const { return chosen_; }

  /// Shows only the values that contain every word of `typed`.
  void search(const QString& typed);

 Q_SIGNALS:
  void chosenChanged();

 private:
  void updateChosen(const QItemSelection& selected, const QItemSelection& deselected);
  void selectChosen();

  QStringList values_;
  TextSearch search_;
  QStringListModel shown_;
  QSet<QString> chosen_;
};

}  // namespace parlexo
