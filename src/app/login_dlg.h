// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/core/login_flow.h"
#include "ui/gradient_page.h"

class QLineEdit;
class QVBoxLayout;

namespace parlexo {

/// Asks for user name and password until LoginFlow accepts them or the user cancels.
class CLoginDlg : public GradientDialog {
  Q_OBJECT

 public:
  /// `flow` must outlive the dialog. If `rememberedUser` is not empty, it is filled in and the password field
  /// has the focus.
  CLoginDlg(LoginFlow& flow, const QString& rememberedUser, QWidget* parent = nullptr);

  void reject() override;
  /// Also clears the password field and wipes its memory.
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
  bool isLoggingIn_ = false;
};

}  // namespace parlexo
