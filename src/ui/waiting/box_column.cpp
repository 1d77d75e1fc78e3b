// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/waiting/box_column.h"

#include <QVBoxLayout>

#include "ui/waiting/animated_picture.h"

namespace parlexo {

QVBoxLayout* createColumn(QWidget& dialog) {
  auto* column = new QVBoxLayout(&dialog);
  column->setContentsMargins(16, 14, 16, 14);
  column->setSpacing(10);
  column->addWidget(createConnectingAnimation(&dialog));
  return column;
}

}  // namespace parlexo
