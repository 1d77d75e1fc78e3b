// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace parlexo {

/// The icon beside a message, chosen by the icon bits of its style and drawn, so that it is crisp at
/// every scale. A style without an icon shows nothing.
class MessageIcon : public QWidget {
  Q_OBJECT

 public:
  /// `style` is made of message_style values.
  explicit MessageIcon(unsigned style, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  unsigned icon_;
};

}  // namespace parlexo
