// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QGroupBox>

#include "account/core/account_services.h"
#include "account/core/email_preferences.h"

class QCheckBox;
class QGridLayout;
class QLineEdit;

namespace parlexo {

/// The section of the settings page for messages sent by e-mail. Controls without effect are disabled.
class EmailPreferencesPanel final : public QGroupBox {
  Q_OBJECT

 public:
  /// Fetches the preferences immediately. `services` must refer to objects that outlive the panel.
  explicit EmailPreferencesPanel(const AccountServices& services, QWidget* parent = nullptr);

  /// Fetches the preferences again, unless there are unsaved changes.
  void reloadUnlessChanged();

 protected:
  /// Reloads the preferences if another user has logged in since they were fetched.
  void showEvent(QShowEvent* event) override;

 private:
  QCheckBox* addCheckBox(QGridLayout& grid, int row, int column, const char* name, const QString& label);
  QLineEdit* addEdit(QGridLayout& grid, int row, int column, const char* name, const QString& label);
  void createSwitches(QGridLayout& grid);
  void createFilter(QGridLayout& grid);
  void load();
  void save();
  void setFields(const EmailPreferences& preferences);
  [[nodiscard]] EmailPreferences readFields() const;
  void updateEnabled();
  void focusMissingField();

  AccountServices services_;
  EmailPreferences saved_;  ///< as last fetched from or saved at the gateway
  QString shownUser_;       ///< the user whose preferences are shown

  QCheckBox* enabled_ = nullptr;
  QLineEdit* code_ = nullptr;
  QCheckBox* split_ = nullptr;
  QCheckBox* doubleLine_ = nullptr;
  QCheckBox* endKeyword_ = nullptr;
  QCheckBox* filter_ = nullptr;
  std::array<QLineEdit*, 3> addresses_{};
};

}  // namespace parlexo
