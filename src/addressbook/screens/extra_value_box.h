// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListView>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QStringListModel>

#include "addressbook/core/text_search.h"

namespace parlexo {

/// The list box of one Extra field: every click and every press of the space bar chooses a value or takes
/// it back. A search hides values; the hidden ones stay chosen.
class ExtraValueBox final : public QListView {
  Q_OBJECT

 public:
  /// `label` is what a screen reader calls the list.
  ExtraValueBox(const QStringList& values, const QString& label, QWidget* parent = nullptr);

  /// The chosen values, shown or not.
  [[nodiscard]] const QSet<QString>& chosen() const { return chosen_; }

  /// Shows the values that have every word of `typed`.
  void search(const QString& typed);

 Q_SIGNALS:
  void chosenChanged();

 private:
  void takeChoice(const QItemSelection& selected, const QItemSelection& deselected);
  void showChoice();

  QStringList values_;
  TextSearch search_;
  QStringListModel shown_;
  QSet<QString> chosen_;
};

}  // namespace parlexo
