// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/ok_and_cancel.h"

#include "ui/page_controls.h"

namespace parlexo {

using namespace Qt::StringLiterals;

QLayout* okAndCancelRow(QDialog& dialog) {
  return dialogButtonRow(dialog, {u"okButton"_s, u"&OK"_s}, {u"cancelButton"_s, u"&Cancel"_s});
}

}  // namespace parlexo
