// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include "addressbook/core/contact_import.h"
#include "ui/gradient_page.h"

class QVBoxLayout;

namespace parlexo {

class Notifier;

/// Shows the result of an import and the refused rows, which the user can save to a file.
class CImportSummaryDlg final : public GradientDialog {
  Q_OBJECT

 public:
  /// All arguments must outlive the dialog.
  CImportSummaryDlg(const Sheet& sheet, const ImportPlan& plan, const ImportOutcome& outcome,
                    Notifier& notifier, QWidget* parent = nullptr);

  /// Writes the refused rows to a CSV file. Reports an error and returns false on failure.
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
