// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "ui/gradient_page.h"

class QLineEdit;

namespace parlexo {

/// Lets the user set the sender ID that all send pages use until the program ends. Does not call the gateway;
/// the next send sets the ID there.
class CSenderIdDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// Opens with `current` in the edit; empty for none.
  explicit CSenderIdDlg(const QString& current, QWidget* parent = nullptr);

  /// The text of the edit, to be used if the dialog was accepted.
  [[nodiscard]] QString senderId() const;

 private:
  void createLayout(const QString& current);

  QLineEdit* edit_ = nullptr;
};

}  // namespace parlexo
