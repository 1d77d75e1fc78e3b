// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/waiting/animated_picture.h"

#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

const QColor ground(214, 239, 255);

/// A GIF of 2 x 1 pixels with a frame for each delay, blue and red in turn, put together from the bytes that
/// the format prescribes.
QByteArray tinyGif(const std::vector<int>& hundredths) {
  // Signature, size and flags, then a colour table: black, red, green, blue.
  QByteArray hex = QByteArray("47494638396102000100f10000") + "000000ff000000ff000000ff";
  bool isRed = false;
  for (const int delay : hundredths) {
    hex += "21f90404" + QByteArray::number(delay, 16).rightJustified(2, '0') + "000000";
    hex += QByteArray("2c00000000020001000002") + (std::exchange(isRed, !isRed) ? "024c0a00" : "02dc0a00");
  }
  return QByteArray::fromHex(hex + "3b");
}

/// What a picture shows at the moment, pixel by pixel, on the dialog's ground.
std::vector<QColor> renderedPixels(CAnimatedPicture& picture) {
  QImage image(2, 1, QImage::Format_RGB32);
  image.fill(ground);
  picture.render(&image, {}, {}, QWidget::RenderFlags());
  return {image.pixelColor(0, 0), image.pixelColor(1, 0)};
}

TEST(AnimatedPicture, framesHaveTheirOwnDelayWithAMinimum) {
  for (const auto& [stored, milliseconds] :
       {std::pair{0, 100}, {1, 100}, {4, 100}, {5, 50}, {6, 60}, {250, 2500}})
    EXPECT_EQ(frameDelay(stored), milliseconds) << stored;
  CAnimatedPicture picture;
  ASSERT_TRUE(picture.loadFromMemory(tinyGif({20, 5})));
  QElapsedTimer clock;
  clock.start();
  picture.start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return picture.currentFrame() == 1; }));
  EXPECT_GE(clock.elapsed(), 198);
  picture.resize(2, 1);
  picture.stop();
  EXPECT_EQ(renderedPixels(picture), (std::vector<QColor>{Qt::red, Qt::red}));
}

TEST(AnimatedPicture, singleFrameIsShownWithoutATimer) {
  CAnimatedPicture picture;
  picture.resize(2, 1);
  ASSERT_TRUE(picture.loadFromMemory(tinyGif({5})));
  EXPECT_TRUE(picture.start());
  EXPECT_FALSE(picture.isRunning());
  EXPECT_EQ(renderedPixels(picture), (std::vector<QColor>{Qt::blue, Qt::blue}));
}

TEST(AnimatedPicture, brokenDataLeavesItBlank) {
  const QByteArray whole = tinyGif({5, 5});
  for (const QByteArray& data : {QByteArray(), QByteArray("no picture"), whole.left(6), whole.left(25)}) {
    CAnimatedPicture picture;
    picture.resize(2, 1);
    ASSERT_TRUE(picture.loadFromMemory(whole));
    picture.start();
    EXPECT_FALSE(picture.loadFromMemory(data)) << data.size();
    EXPECT_FALSE(picture.start());
    EXPECT_FALSE(picture.isRunning());
    EXPECT_EQ(renderedPixels(picture), (std::vector<QColor>{ground, ground}));
  }
}

}  // namespace
}  // namespace parlexo::test
