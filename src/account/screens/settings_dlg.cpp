// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/screens/settings_dlg.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "account/screens/email_preferences_panel.h"
#include "account/screens/password_panel.h"
#include "ui/look.h"

namespace parlexo {

using namespace Qt::StringLiterals;

CSettingsDlg::CSettingsDlg(const AccountServices& services, const FolderChooser& chooser, QWidget* parent)
    : GradientPage(parent) {
  setObjectName(u"settingsPage"_s);
  email_ = new EmailPreferencesPanel(services, this);
  auto* lower = new QHBoxLayout;
  lower->setSpacing(look::sectionSpacing);
  lower->addWidget(new PasswordPanel(services, this), 2);
  lower->addWidget(new StorageFoldersPanel(services, chooser, this), 3);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(look::pageMargins);
  column->setSpacing(look::rowSpacing);
  column->addWidget(email_);
  column->addLayout(lower);
  column->addStretch(1);
}

void CSettingsDlg::refresh() {
  email_->reloadUnlessChanged();
}

}  // namespace parlexo
