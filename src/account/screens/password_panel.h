// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>

#include "account/core/account_services.h"
#include "account/core/password_change.h"

class QFormLayout;
class QLineEdit;

namespace parlexo {

/// The section of the settings page for changing the password. The fields are wiped after a change and by the
/// destructor.
class PasswordPanel final : public QGroupBox {
  Q_OBJECT

 public:
  /// `services` must refer to objects that outlive the panel.
  explicit PasswordPanel(const AccountServices& services, QWidget* parent = nullptr);
  ~PasswordPanel() override;
  PasswordPanel(const PasswordPanel&) = delete;
  PasswordPanel& operator=(const PasswordPanel&) = delete;

 private:
  QLineEdit* addEdit(QFormLayout& form, const char* name, const QString& label);
  void change();
  void wipeFields();
  [[nodiscard]] QLineEdit* findField(PasswordField field) const;

  AccountServices services_;
  QLineEdit* old_ = nullptr;
  QLineEdit* new_ = nullptr;
  QLineEdit* retyped_ = nullptr;
};

}  // namespace parlexo
