// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QLabel>

namespace parlexo {

/// Shows a preview of the selected picture.
class PicturePreview final : public QLabel {
  Q_OBJECT

 public:
  explicit PicturePreview(QWidget* parent = nullptr);

  /// The size of the largest picture that always fits, in device pixels.
  [[nodiscard]] QSize maxPictureSize() const;

  /// Shows `picture`, at most maxPictureSize() large, or `text` if it is null.
  void display(QImage picture, const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace parlexo
