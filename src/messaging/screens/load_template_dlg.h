// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "messaging/core/template.h"
#include "ui/gradient_page.h"

class QLayout;
class QListWidget;

namespace parlexo {

class Notifier;

/// Lets the user pick a saved template to load, or delete some.
class CLoadTemplateDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// Lists what is in `folder` now; nothing is selected. `folder` and `notifier` must outlive the dialog.
  CLoadTemplateDlg(const TemplateFolder& folder, Notifier& notifier, QWidget* parent = nullptr);

  /// The loaded template, once the dialog was accepted.
  [[nodiscard]] const Template& content() const { return content_; }

  /// Loads the selected template after a question and closes; stays open when there is none, the user says
  /// no or the file is no template.
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
