// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QtGlobal>

#include "ui/gradient_page.h"

class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace parlexo {

struct RunState;

/// A number of the service that receives messages for accounts.
struct ReceivingNumber {
  const char* country;  ///< English; part of the label and, in lower case, of the object names
  const char* number;
};

inline constexpr std::array<ReceivingNumber, 3> receivingNumbers{
    {{QT_TRANSLATE_NOOP("parlexo::CReceiveMessagesDlg", "Australian"), "+61491570156"},
     {QT_TRANSLATE_NOOP("parlexo::CReceiveMessagesDlg", "Malaysian"), "+60312345678"},
     {QT_TRANSLATE_NOOP("parlexo::CReceiveMessagesDlg", "China"), "+861012345678"}}};

/// The page with the numbers that receive replies to the account's messages. An account below a parent
/// account has no numbers; the page says so.
class CReceiveMessagesDlg final : public GradientPage {
  Q_OBJECT

 public:
  /// `state` must outlive the page.
  explicit CReceiveMessagesDlg(const RunState& state, QWidget* parent = nullptr);

  void refresh() override { updateUser(); }

 protected:
  /// Updates the page, as another user may have logged in since it was last visible.
  void showEvent(QShowEvent* event) override;

 private:
  [[nodiscard]] QWidget* createNumbers();
  [[nodiscard]] QWidget* createExplanation();
  void updateUser();

  const RunState& state_;
  QLabel* introduction_ = nullptr;
  QWidget* ownNumbers_ = nullptr;  ///< hidden for an account below a parent account
  std::array<QLineEdit*, receivingNumbers.size()> users_{};
};

}  // namespace parlexo
