// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/screens/storage_folders_panel.h"
#include "ui/gradient_page.h"

namespace parlexo {

class EmailPreferencesPanel;

/// The settings page: the account's e-mail preferences and password, which are stored by the gateway, and the
/// storage folders of this client.
class CSettingsDlg final : public GradientPage {
  Q_OBJECT

 public:
  /// Fetches the e-mail preferences immediately. `services` must refer to objects that outlive the page.
  explicit CSettingsDlg(const AccountServices& services, const FolderChooser& chooser = chooseFolder,
                        QWidget* parent = nullptr);

  void refresh() override;

 private:
  EmailPreferencesPanel* email_ = nullptr;
};

}  // namespace parlexo
