// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/core/contact_import.h"
#include "ui/gradient_page.h"

class QCheckBox;

namespace parlexo {

/// Asks during an import what to do about a contact that the address book has already.
class CImportQuestionDlg final : public GradientDialog {
  Q_OBJECT

 public:
  explicit CImportQuestionDlg(const QString& contactName, QWidget* parent = nullptr);

  /// Cancel until the user has answered; so do Escape and the close box.
  [[nodiscard]] ImportUser::Answer answer() const;

 private:
  QCheckBox* forAll_;
  ImportUser::Choice choice_ = ImportUser::Choice::Cancel;
};

}  // namespace parlexo
