// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace parlexo {

/// A decorative header with the program's name, a speech bubble and signal waves. It has no accessible name,
/// so screen readers skip it.
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
