// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/screens/contact_text_validator.h"

#include "addressbook/core/contact_form.h"

namespace parlexo {

QValidator::State ContactTextValidator::validate(QString& input, int& cursor) const {
  cursor = static_cast<int>(asContactText(input.left(cursor)).size());
  input = asContactText(input);
  return Acceptable;
}

}  // namespace parlexo
