// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/search_field.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>

#include "ui/look.h"

namespace parlexo {

SearchField::SearchField(const QString& hint, QAbstractItemView& list, QWidget* parent)
    : QLineEdit(parent), list_(list) {
  setPlaceholderText(hint);
  setAccessibleName(hint);
  setClearButtonEnabled(true);
  if (auto* clearButton = findChild<QToolButton*>()) clearButton->setAccessibleName(tr("Clear search"));
}

void SearchField::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      list_.setFocus(Qt::TabFocusReason);
      return;
    case Qt::Key_Escape:
      if (text().isEmpty()) break;
      clear();
      return;
    default:
      break;
  }
  QLineEdit::keyPressEvent(event);
}

QHBoxLayout* searchRow(const QString& caption, SearchField& search) {
  auto* label = new QLabel(caption, search.parentWidget());
  label->setBuddy(&search);
  auto* row = new QHBoxLayout;
  row->setSpacing(look::controlSpacing);
  row->addWidget(label);
  row->addWidget(&search, 1);
  return row;
}

}  // namespace parlexo
