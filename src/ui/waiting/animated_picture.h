// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QImage>
#include <QTimer>
#include <QWidget>

namespace parlexo {

/// The animation that every waiting box and several dialogs show.
inline constexpr char connectingAnimation[] = ":/animations/connecting.gif";

/// How long a frame stays, in milliseconds, for the delay stored in the GIF in hundredths of a second:
/// delays below 5, missing ones among them, are slowed down to 100 ms.
[[nodiscard]] constexpr int frameDelay(int storedHundredths) {
  return storedHundredths >= 5 ? storedHundredths * 10 : 100;
}

/// A picture that plays a GIF in an endless loop, decoration only. Without a loaded picture it is blank.
class CAnimatedPicture : public QWidget {
  Q_OBJECT

 public:
  explicit CAnimatedPicture(QWidget* parent = nullptr);

  /// Loads a GIF from the program's resources, in its "@2x" form where the screen has two pixels for one
  /// and that form exists. False when the resource is missing or no picture; the control is then blank.
  bool loadFromResource(const QString& path);
  /// Loads the bytes of a GIF. `pixelsPerPoint` is how many of its pixels make one of the window's. False
  /// when not a single frame can be read; the control is then blank.
  bool loadFromMemory(const QByteArray& gif, qreal pixelsPerPoint = 1);

  /// Shows the picture and, when it has more than one frame, plays it. False when nothing is loaded.
  bool start();
  /// Stops at the current frame; harmless when it does not run.
  void stop();

  [[nodiscard]] bool isRunning() const { return timer_.isActive(); }
  [[nodiscard]] int frameCount() const { return int(frames_.size()); }
  [[nodiscard]] int currentFrame() const { return current_; }
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// A frame as it looks on the whole picture, the disposal of those before it applied.
  struct Frame {
    QImage picture;
    int storedHundredths = 0;
  };

  static std::vector<Frame> decode(const QByteArray& gif, qreal pixelsPerPoint);
  void advance();

  std::vector<Frame> frames_;
  int current_ = 0;
  QTimer timer_;
};

/// The animation of the program, playing.
[[nodiscard]] CAnimatedPicture* createConnectingAnimation(QWidget* parent = nullptr);

}  // namespace parlexo
