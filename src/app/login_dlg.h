// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/core/login_flow.h"
#include "ui/gradient_page.h"

class QLineEdit;
class QVBoxLayout;

namespace parlexo {

/// Asks for user name and password and lets LoginFlow try them; closes with Accepted once the gateway has
/// taken them.
class CLoginDlg : public GradientDialog {
  Q_OBJECT

 public:
  /// `flow` must outlive the dialog. `rememberedUser` fills the first field, and the second has the focus
  /// then.
  CLoginDlg(LoginFlow& flow, const QString& rememberedUser, QWidget* parent = nullptr);

  void reject() override;
  /// Also wipes the password field.
  void done(int result) override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  [[nodiscard]] QLineEdit* createField(const QString& name);
  void addFields(QVBoxLayout& column, const QString& rememberedUser);
  void addButtons(QVBoxLayout& column);
  void logIn();

  LoginFlow& flow_;
  QLineEdit* user_ = nullptr;
  QLineEdit* password_ = nullptr;
  bool attempting_ = false;
};

}  // namespace parlexo
