// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace parlexo {

/// The program's drawn header: its name beside a speech bubble from which waves travel to the right. Pure
/// decoration, so assistive tools pass it over.
class Banner : public QWidget {
  Q_OBJECT

 public:
  explicit Banner(QWidget* parent = nullptr);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace parlexo
