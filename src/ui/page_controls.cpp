// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/page_controls.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QSizePolicy>

#include "base/secret.h"
#include "ui/look.h"
#include "ui/picture_button.h"

namespace parlexo {

using namespace Qt::StringLiterals;

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

QLabel* wrappedLabel(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setWordWrap(true);
  return label;
}

QLayout* lineWithLink(QLabel& text, QWidget& link) {
  text.setMinimumSize(1, link.sizeHint().height());
  link.setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  auto* row = new QHBoxLayout;
  row->addWidget(&text);
  row->addWidget(&link);
  row->addStretch(1);
  return row;
}

PictureButton* addButton(QBoxLayout& row, const QString& objectName, const QString& text) {
  auto* button = new PictureButton(text);
  button->setObjectName(objectName);
  row.addWidget(button);
  return button;
}

QLayout* dialogButtonRow(QDialog& dialog, const DialogButton& accepting, const DialogButton& rejecting) {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  PictureButton* accept = addButton(*row, accepting.objectName, accepting.text);
  accept->setDefault(true);
  QObject::connect(accept, &PictureButton::clicked, &dialog, &QDialog::accept);
  PictureButton* reject = addButton(*row, rejecting.objectName, rejecting.text);
  QObject::connect(reject, &PictureButton::clicked, &dialog, &QDialog::reject);
  return row;
}

QLayout* okAndCancelRow(QDialog& dialog) {
  return dialogButtonRow(dialog, {u"okButton"_s, QCoreApplication::translate("DialogButtons", "&OK")},
                         {u"cancelButton"_s, QCoreApplication::translate("DialogButtons", "&Cancel")});
}

void wipeField(QLineEdit& field) {
  QString text = field.text();
  // Unlike clear(), setText() also drops the undo history, which leaves `text` as the only reference to
  // the data.
  field.setText({});
  wipe(text);
}

}  // namespace parlexo
