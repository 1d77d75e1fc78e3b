// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QLabel>

namespace parlexo {

/// Where a page shows how the chosen picture looks.
class PicturePreview final : public QLabel {
  Q_OBJECT

 public:
  explicit PicturePreview(QWidget* parent = nullptr);

  /// The largest picture that it has room for at any time, in pixels of the screen.
  [[nodiscard]] QSize room() const;

  /// Shows `picture`, which should be no larger than room(), or `text` where it is null.
  void display(QImage picture, const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace parlexo
