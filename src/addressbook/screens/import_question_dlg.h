// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/core/contact_import.h"
#include "ui/gradient_page.h"

class QCheckBox;

namespace parlexo {

/// Asks during an import what to do with a contact that already exists in the address book.
class CImportQuestionDlg final : public GradientDialog {
  Q_OBJECT

 public:
  explicit CImportQuestionDlg(const QString& contactName, QWidget* parent = nullptr);

  /// The user's answer; Cancel if the dialog was closed otherwise.
  [[nodiscard]] ImportUser::Answer answer() const;

 private:
  QCheckBox* forAll_;
  ImportUser::Choice choice_ = ImportUser::Choice::Cancel;
};

}  // namespace parlexo
