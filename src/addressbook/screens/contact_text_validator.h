// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QValidator>

namespace parlexo {

/// Turns whatever is typed or pasted into a field at once into what a contact can hold, so that the user
/// sees what will be kept.
class ContactTextValidator final : public QValidator {
  Q_OBJECT

 public:
  using QValidator::QValidator;

  [[nodiscard]] State validate(QString& input, int& cursor) const override;
};

}  // namespace parlexo
