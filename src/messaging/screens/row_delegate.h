#pragma once

#include <QStyledItemDelegate>

namespace parlexo {

/// Gives the rows of a list room to breathe, as the tables of the program have.
class RowDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr int rowPadding = 6;
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, rowPadding);
  }
};

}  // namespace parlexo
