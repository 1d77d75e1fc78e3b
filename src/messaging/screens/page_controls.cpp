#include "messaging/screens/page_controls.h"

#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QString>

#include "ui/look.h"

namespace parlexo {

QLineEdit* readOnlyField(const QString& objectName, QWidget* parent) {
  auto* field = new QLineEdit(parent);
  field->setObjectName(objectName);
  field->setReadOnly(true);
  QPalette palette = field->palette();
  palette.setColor(QPalette::Base, look::listBackground);
  field->setPalette(palette);
  return field;
}

QLabel* labelFor(QWidget* control, const QString& text) {
  auto* label = new QLabel(text, control->parentWidget());
  label->setBuddy(control);
  return label;
}

}  // namespace parlexo
