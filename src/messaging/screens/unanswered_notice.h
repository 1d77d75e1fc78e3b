// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

#include "messaging/core/send_flow.h"

namespace parlexo {

/// The quiet line on a send page that says that the last message may have been accepted although no answer
/// came. Hidden until then, and again once a send has been answered.
class UnansweredNotice final : public QLabel {
  Q_OBJECT

 public:
  explicit UnansweredNotice(QWidget* parent = nullptr);

  /// Shows itself or goes, as the outcome of a send asks for. A send that did not go out says nothing about
  /// the one before, so the notice stays as it is.
  void follow(SendOutcome outcome);
};

}  // namespace parlexo
