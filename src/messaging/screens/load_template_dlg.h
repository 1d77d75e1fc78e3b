// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "messaging/core/template.h"
#include "ui/gradient_page.h"

class QLayout;
class QListWidget;

namespace parlexo {

class Notifier;

/// Lets the user load a saved template or delete templates.
class CLoadTemplateDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// Lists the templates in `folder`; none is selected. `folder` and `notifier` must outlive the dialog.
  CLoadTemplateDlg(const TemplateFolder& folder, Notifier& notifier, QWidget* parent = nullptr);

  /// The loaded template after the dialog was accepted.
  [[nodiscard]] const Template& content() const { return content_; }

  /// Asks for confirmation, loads the selected template and closes. Stays open if nothing is selected, the
  /// user declines, or the template can't be loaded.
  void accept() override;

 private:
  void createList();
  void createLayout();
  [[nodiscard]] QLayout* createButtons();
  [[nodiscard]] bool hasSelection() const;
  [[nodiscard]] QString selectedName() const;
  void deleteSelected();

  const TemplateFolder& folder_;
  Notifier& notifier_;
  Template content_;
  QListWidget* names_ = nullptr;
};

}  // namespace parlexo
