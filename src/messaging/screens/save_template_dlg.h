// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "messaging/core/template.h"
#include "ui/gradient_page.h"

class QLineEdit;

namespace parlexo {

class Notifier;

/// Asks for a name and saves a text with its recipients under it, in the place of an older template of that
/// name.
class CSaveTemplateDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// `folder` and `notifier` must outlive the dialog.
  CSaveTemplateDlg(const TemplateFolder& folder, Template content, Notifier& notifier,
                   QWidget* parent = nullptr);

  /// Saves under the name in the edit and closes; stays open, after a message, when that fails.
  void accept() override;

 private:
  const TemplateFolder& folder_;
  Template content_;
  Notifier& notifier_;
  QLineEdit* name_ = nullptr;
};

}  // namespace parlexo
