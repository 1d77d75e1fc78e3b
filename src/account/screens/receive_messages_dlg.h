// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "account/core/receiving_numbers.h"
#include "ui/gradient_page.h"

class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace parlexo {

struct RunState;

/// The page that tells under which numbers replies to the account's messages arrive. An account that belongs
/// to a parent account has none and is told so.
class CReceiveMessagesDlg final : public GradientPage {
  Q_OBJECT

 public:
  /// `state` must outlive the page.
  explicit CReceiveMessagesDlg(const RunState& state, QWidget* parent = nullptr);

  void refresh() override { showUser(); }

 protected:
  /// Another user may have logged in since the page was seen last.
  void showEvent(QShowEvent* event) override;

 private:
  [[nodiscard]] QWidget* createNumbers();
  [[nodiscard]] QWidget* createExplanation();
  void showUser();

  const RunState& state_;
  QLabel* introduction_ = nullptr;
  QWidget* ownNumbers_ = nullptr;  ///< all that an account below a parent does not see
  std::array<QLineEdit*, receivingNumbers.size()> users_{};
};

}  // namespace parlexo
