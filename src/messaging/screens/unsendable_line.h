// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "messaging/core/sms_text.h"

namespace parlexo {

class HyperlinkLabel;
class UnsendableHint;

/// The quiet line below a message that tells which of its characters the standard character set lacks, and
/// offers the way out. Empty, but in its place, when there are none.
class UnsendableLine final : public QWidget {
  Q_OBJECT

 public:
  explicit UnsendableLine(QWidget* parent = nullptr);

  /// Looks at the message as it stands now.
  void follow(const QString& editorText, SmsCharset charset);

 Q_SIGNALS:
  /// The user wants the message to be sent in Unicode. Offered only to a text that Unicode can hold.
  void unicodeRequested();

 private:
  UnsendableHint* hint_ = nullptr;
  HyperlinkLabel* switch_ = nullptr;
};

}  // namespace parlexo
