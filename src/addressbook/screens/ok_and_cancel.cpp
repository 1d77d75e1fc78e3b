#include "addressbook/screens/ok_and_cancel.h"

#include <QDialog>
#include <QHBoxLayout>

#include "ui/page_controls.h"
#include "ui/picture_button.h"

namespace parlexo {

QLayout* okAndCancelRow(QDialog& dialog) {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  auto* ok = addButton(*row, QStringLiteral("okButton"), QStringLiteral("&OK"));
  ok->setDefault(true);
  QObject::connect(ok, &PictureButton::clicked, &dialog, &QDialog::accept);
  auto* cancel = addButton(*row, QStringLiteral("cancelButton"), QStringLiteral("&Cancel"));
  QObject::connect(cancel, &PictureButton::clicked, &dialog, &QDialog::reject);
  return row;
}

}  // namespace parlexo
