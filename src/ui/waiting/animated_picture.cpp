// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/waiting/animated_picture.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QVBoxLayout>

#include "ui/look.h"

// Without this call the linker drops the resources of a static library. Q_INIT_RESOURCE must be used outside
// of namespaces.
static void loadResources() {
  Q_INIT_RESOURCE(waiting);
}

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

QByteArray readFile(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString highDpiName(QString path) {
  return path.insert(path.lastIndexOf(u'.'), u"@2x"_s);
}

}  // namespace

CAnimatedPicture::CAnimatedPicture(QWidget* parent) : QWidget(parent) {
  loadResources();
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  timer_.setTimerType(Qt::PreciseTimer);
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &CAnimatedPicture::advance);
}

bool CAnimatedPicture::loadFromResource(const QString& path) {
  if (devicePixelRatioF() > 1 && loadFromMemory(readFile(highDpiName(path)), 2)) return true;
  return loadFromMemory(readFile(path));
}

bool CAnimatedPicture::loadFromMemory(const QByteArray& gif, qreal pixelsPerPoint) {
  stop();
  frames_ = decode(gif, pixelsPerPoint);
  current_ = 0;
  updateGeometry();
  update();
  return !frames_.empty();
}

std::vector<CAnimatedPicture::Frame> CAnimatedPicture::decode(const QByteArray& gif, qreal pixelsPerPoint) {
  QBuffer buffer;
  buffer.setData(gif);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, "gif");
  std::vector<Frame> frames;
  while (reader.canRead()) {
    QImage picture = reader.read();
    if (picture.isNull()) break;
    picture.setDevicePixelRatio(pixelsPerPoint);
    frames.push_back({picture, reader.nextImageDelay() / 10});
  }
  return frames;
}

bool CAnimatedPicture::start() {
  if (frames_.empty()) return false;
  update();
  if (frames_.size() > 1 && !isRunning()) timer_.start(frameDelay(frames_[current_].storedHundredths));
  return true;
}

void CAnimatedPicture::stop() {
  timer_.stop();
}

void CAnimatedPicture::advance() {
  current_ = (current_ + 1) % frameCount();
  timer_.start(frameDelay(frames_[current_].storedHundredths));
  update();
}

QSize CAnimatedPicture::sizeHint() const {
  return frames_.empty() ? QSize(0, 0) : frames_.front().picture.deviceIndependentSize().toSize();
}

void CAnimatedPicture::paintEvent(QPaintEvent*) {
  if (frames_.empty()) return;
  const QImage& picture = frames_[current_].picture;
  const QSizeF size = picture.deviceIndependentSize();
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), picture);
}

CAnimatedPicture* createConnectingAnimation(QWidget* parent) {
  auto* animation = new CAnimatedPicture(parent);
  animation->setObjectName(u"animation"_s);
  animation->loadFromResource(QLatin1String(connectingAnimation));
  animation->start();
  return animation;
}

QVBoxLayout* createColumn(QWidget& dialog) {
  auto* column = new QVBoxLayout(&dialog);
  column->setContentsMargins(look::dialogMargins);
  column->setSpacing(look::rowSpacing);
  column->addWidget(createConnectingAnimation(&dialog));
  return column;
}

}  // namespace parlexo
