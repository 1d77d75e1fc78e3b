// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include "addressbook/core/contact_import.h"
#include "ui/gradient_page.h"

class QVBoxLayout;

namespace parlexo {

class Notifier;

/// Tells at the end of an import what became of it and which rows were refused, and lets the user save
/// those.
class CImportSummaryDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// All must outlive the dialog.
  CImportSummaryDlg(const Sheet& sheet, const ImportPlan& plan, const ImportOutcome& outcome,
                    Notifier& notifier, QWidget* parent = nullptr);

  /// Writes the refused rows into the file; true when that succeeded, else after a message.
  bool saveRefusedTo(const QString& path);

 private:
  [[nodiscard]] QStringList rowTexts() const;
  void addRows(QVBoxLayout& layout);
  void addButtons(QVBoxLayout& layout);
  void saveRefused();

  const Sheet& sheet_;
  const ImportPlan& plan_;
  const ImportOutcome& outcome_;
  Notifier& notifier_;
};

}  // namespace parlexo
