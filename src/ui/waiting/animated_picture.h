// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QImage>
#include <QTimer>
#include <QWidget>

class QVBoxLayout;

namespace parlexo {

/// Resource path of the animation shown by the progress box and several dialogs.
inline constexpr char connectingAnimation[] = ":/animations/connecting.gif";

/// Converts a frame delay stored in a GIF, in hundredths of a second, to milliseconds. Delays below 5,
/// including missing ones, become 100 ms.
[[nodiscard]] constexpr int frameDelay(int storedHundredths) {
  return storedHundredths >= 5 ? storedHundredths * 10 : 100;
}

/// A decorative widget that plays a GIF in an endless loop. Blank until a picture is loaded.
class CAnimatedPicture : public QWidget {
  Q_OBJECT

 public:
  explicit CAnimatedPicture(QWidget* parent = nullptr);

  /// Loads a GIF from the program's resources; its "@2x" variant, if there is one, on a high-DPI screen.
  /// Returns false, leaving the widget blank, if the resource is missing or can't be decoded.
  bool loadFromResource(const QString& path);
  /// Decodes a GIF. `pixelsPerPoint` is its device pixel ratio. Returns false, leaving the widget blank, if
  /// no frame can be decoded.
  bool loadFromMemory(const QByteArray& gif, qreal pixelsPerPoint = 1);

  /// Starts the animation; no effect with a single frame. Returns false if no picture is loaded.
  bool start();
  /// Stops at the current frame; no-op if not running.
  void stop();

  [[nodiscard]] bool isRunning() const { return timer_.isActive(); }
  [[nodiscard]] int frameCount() const { return int(frames_.size()); }
  [[nodiscard]] int currentFrame() const { return current_; }
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// A complete picture: the frame composed with the preceding ones.
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

/// Creates and starts the animation connectingAnimation.
[[nodiscard]] CAnimatedPicture* createConnectingAnimation(QWidget* parent = nullptr);

/// Sets a vertical layout on `dialog` with the animation at the top. The dialog owns the layout.
[[nodiscard]] QVBoxLayout* createColumn(QWidget& dialog);

}  // namespace parlexo
