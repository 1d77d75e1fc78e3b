// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/waiting/box_column.h"

#include <QVBoxLayout>

#include "ui/look.h"
#include "ui/waiting/animated_picture.h"

namespace parlexo {

QVBoxLayout* createColumn(QWidget& dialog) {
  auto* column = new QVBoxLayout(&dialog);
  column->setContentsMargins(look::dialogMargins);
  column->setSpacing(look::rowSpacing);
  column->addWidget(createConnectingAnimation(&dialog));
  return column;
}

}  // namespace parlexo
