// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "messaging/core/template.h"
#include "ui/gradient_page.h"

class QLineEdit;

namespace parlexo {

class Notifier;

/// Asks for a name and saves a template under it, replacing one with the same name.
class CSaveTemplateDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// `folder` and `notifier` must outlive the dialog.
  CSaveTemplateDlg(const TemplateFolder& folder, Template content, Notifier& notifier,
                   QWidget* parent = nullptr);

  /// Saves the template and closes. Reports a failure and stays open.
  void accept() override;

 private:
  const TemplateFolder& folder_;
  Template content_;
  Notifier& notifier_;
  QLineEdit* name_ = nullptr;
};

}  // namespace parlexo
