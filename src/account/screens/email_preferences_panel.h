// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QGroupBox>

#include "account/core/email_preferences.h"

class QCheckBox;
class QGridLayout;
class QLineEdit;

namespace parlexo {

/// The part of the settings page for messages sent by e-mail. What has no effect is disabled.
class EmailPreferencesPanel final : public QGroupBox {
  Q_OBJECT

 public:
  /// Shows what the gateway holds. `services` must refer to objects that outlive the panel.
  explicit EmailPreferencesPanel(const AccountServices& services, QWidget* parent = nullptr);

  /// Fetches anew what the gateway holds, unless the user has changed something and not saved it yet.
  void reloadUnlessChanged();

 protected:
  /// Another user may have logged in since the preferences were fetched.
  void showEvent(QShowEvent* event) override;

 private:
  QCheckBox* addCheckBox(QGridLayout& grid, int row, int column, const char* name, const QString& label);
  QLineEdit* addEdit(QGridLayout& grid, int row, int column, const char* name, const QString& label);
  void createSwitches(QGridLayout& grid);
  void createFilter(QGridLayout& grid);
  void load();
  void save();
  void show(const EmailPreferences& preferences);
  [[nodiscard]] EmailPreferences shown() const;
  void enableWhatCounts();
  void focusWhatMayMiss();

  const RunState& state_;
  EmailPreferencesFlow flow_;
  EmailPreferences held_;  ///< what the gateway is known to hold
  QString shownUser_;      ///< for whom

  QCheckBox* enabled_ = nullptr;
  QLineEdit* code_ = nullptr;
  QCheckBox* split_ = nullptr;
  QCheckBox* doubleLine_ = nullptr;
  QCheckBox* endKeyword_ = nullptr;
  QCheckBox* filter_ = nullptr;
  std::array<QLineEdit*, 3> addresses_{};
};

}  // namespace parlexo
