#include "gateway/boxes/animated_picture.h"

#include <utility>

#include <QElapsedTimer>
#include <QTest>
#include <gtest/gtest.h>

#include "tests/gateway/boxes/gif_bytes.h"

namespace parlexo {
namespace {

const QColor ground(214, 239, 255);

/// What a picture shows at the moment, pixel by pixel, on the dialog's ground.
std::vector<QColor> pixelsOf(CAnimatedPicture& picture) {
  QImage image(2, 1, QImage::Format_RGB32);
  image.fill(ground);
  picture.render(&image, {}, {}, QWidget::RenderFlags());
  return {image.pixelColor(0, 0), image.pixelColor(1, 0)};
}

void showFrame(CAnimatedPicture& picture, int frame) {
  picture.start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return picture.currentFrame() == frame; }));
  picture.stop();
}

TEST(AnimatedPicture, eachFrameStaysForItsOwnDelayAndShortOnesAreSlowedDown) {
  for (const auto& [stored, milliseconds] :
       {std::pair{0, 100}, {1, 100}, {4, 100}, {5, 50}, {6, 60}, {250, 2500}})
    EXPECT_EQ(frameDelay(stored), milliseconds) << stored;
  CAnimatedPicture picture;
  ASSERT_TRUE(picture.loadFromMemory(tinyGif({{GifColor::Red, 0, 2, 20, 1}, {GifColor::Green, 0, 2, 5, 1}})));
  QElapsedTimer clock;
  clock.start();
  picture.start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return picture.currentFrame() == 1; }));
  EXPECT_GE(clock.elapsed(), 198);
}
TEST(AnimatedPicture, disposalTellsWhatTheNextFrameIsDrawnOn) {
  // Right is what shows where the frame was disposed of; the picture's own background is the table's black.
  for (const auto& [disposal, right] : {std::pair{1, Qt::green}, {2, Qt::black}, {3, Qt::red}}) {
    CAnimatedPicture picture;
    picture.resize(2, 1);
    ASSERT_TRUE(picture.loadFromMemory(tinyGif(
        {{GifColor::Red, 0, 2, 5, 1}, {GifColor::Green, 1, 1, 5, disposal}, {GifColor::Blue, 0, 1, 5, 1}})));
    EXPECT_EQ(pixelsOf(picture), (std::vector<QColor>{Qt::red, Qt::red}));
    showFrame(picture, 1);
    EXPECT_EQ(pixelsOf(picture), (std::vector<QColor>{Qt::red, Qt::green})) << disposal;
    showFrame(picture, 2);
    EXPECT_EQ(pixelsOf(picture), (std::vector<QColor>{Qt::blue, right})) << disposal;
    showFrame(picture, 0);
    EXPECT_EQ(pixelsOf(picture), (std::vector<QColor>{Qt::red, Qt::red}))
        << "the loop begins on a clean ground";
  }
}

TEST(AnimatedPicture, singleFrameIsShownWithoutATimer) {
  CAnimatedPicture picture;
  picture.resize(2, 1);
  ASSERT_TRUE(picture.loadFromMemory(tinyGif({{GifColor::Blue, 0, 2, 5, 0}})));
  EXPECT_TRUE(picture.start());
  EXPECT_FALSE(picture.isRunning());
  EXPECT_EQ(pixelsOf(picture), (std::vector<QColor>{Qt::blue, Qt::blue}));
}

TEST(AnimatedPicture, brokenDataLeavesItBlank) {
  const QByteArray whole = tinyGif({{GifColor::Red, 0, 2, 5, 1}, {GifColor::Green, 0, 2, 5, 1}});
  for (const QByteArray& data : {QByteArray(), QByteArray("no picture"), whole.left(6), whole.left(25)}) {
    CAnimatedPicture picture;
    picture.resize(2, 1);
    ASSERT_TRUE(picture.loadFromMemory(whole));
    picture.start();
    EXPECT_FALSE(picture.loadFromMemory(data)) << data.size();
    EXPECT_FALSE(picture.start());
    EXPECT_FALSE(picture.isRunning());
    EXPECT_EQ(pixelsOf(picture), (std::vector<QColor>{ground, ground}));
  }
}

TEST(AnimatedPicture, programsAnimationIsThereAndMoves) {
  CAnimatedPicture picture;
  EXPECT_FALSE(picture.loadFromResource(QStringLiteral(":/animations/missing.gif")));
  ASSERT_TRUE(picture.loadFromResource(QString::fromLatin1(connectingAnimation)));
  EXPECT_GT(picture.frameCount(), 1);
  EXPECT_GE(picture.sizeHint().height(), 32);
  EXPECT_LE(picture.sizeHint().height(), 48);
  EXPECT_TRUE(picture.start());
  EXPECT_TRUE(QTest::qWaitFor([&] { return picture.currentFrame() == 2; }));
}

}  // namespace
}  // namespace parlexo
