// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/picture_preview.h"

#include <utility>

#include <QPainter>
#include <QPixmap>

#include "ui/look.h"

namespace parlexo {

using namespace Qt::StringLiterals;

PicturePreview::PicturePreview(QWidget* parent) : QLabel(parent) {
  setObjectName(u"picturePreview"_s);
  setAccessibleName(tr("Preview"));
  setAlignment(Qt::AlignCenter);
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setFixedWidth(dialogUnits(*this, 110, 0).width());
  setMinimumHeight(dialogUnits(*this, 0, 60).height());
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

QSize PicturePreview::maxPictureSize() const {
  return (QSizeF(minimumSize().shrunkBy(QMargins(2, 2, 2, 2))) * devicePixelRatioF()).toSize();
}

void PicturePreview::display(QImage picture, const QString& text) {
  if (picture.isNull()) {
    clear();  // setText() with an empty text would not remove the picture
    setText(text);
    return;
  }
  picture.setDevicePixelRatio(devicePixelRatioF());
  setPixmap(QPixmap::fromImage(std::move(picture)));
}

void PicturePreview::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setPen(look::border);
  painter.setBrush(look::listBackground);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.end();
  QLabel::paintEvent(event);
}

}  // namespace parlexo
