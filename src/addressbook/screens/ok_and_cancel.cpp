#include "addressbook/screens/ok_and_cancel.h"

#include "ui/page_controls.h"

namespace parlexo {

QLayout* okAndCancelRow(QDialog& dialog) {
  return dialogButtonRow(dialog, {QStringLiteral("okButton"), QStringLiteral("&OK")},
                         {QStringLiteral("cancelButton"), QStringLiteral("&Cancel")});
}

}  // namespace parlexo
