#include "gateway/boxes/animated_picture.h"

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

TEST(AnimatedPicture, shortDelaysAreSlowedDown) {
  struct Case {
    int stored, milliseconds;
  };
  for (const Case& row :
       {Case{0, 100}, Case{1, 100}, Case{4, 100}, Case{5, 50}, Case{6, 60}, Case{250, 2500}}) {
    EXPECT_EQ(frameDelay(row.stored), row.milliseconds) << row.stored;
  }
}

TEST(AnimatedPicture, eachFrameStaysForItsOwnDelay) {
  struct Case {
    int stored, atLeast;  // atLeast in milliseconds
  };
  for (const Case& row : {Case{4, 100}, Case{0, 100}, Case{20, 200}}) {
    CAnimatedPicture picture;
    ASSERT_TRUE(picture.loadFromMemory(
        tinyGif({{GifColor::Red, 0, 2, row.stored, 1}, {GifColor::Green, 0, 2, 5, 1}})));
    QElapsedTimer clock;
    clock.start();
    picture.start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return picture.currentFrame() == 1; }));
    EXPECT_GE(clock.elapsed(), row.atLeast - 2) << row.stored;
  }
}

TEST(AnimatedPicture, disposalTellsWhatTheNextFrameIsDrawnOn) {
  // The picture's own background colour is the black of its colour table.
  struct Case {
    int disposal;
    QColor right;  // behind the frame that was drawn there and disposed of
  };
  for (const Case& row : {Case{1, Qt::green}, Case{2, Qt::black}, Case{3, Qt::red}}) {
    CAnimatedPicture picture;
    picture.resize(2, 1);
    ASSERT_TRUE(picture.loadFromMemory(tinyGif({{GifColor::Red, 0, 2, 5, 1},
                                                {GifColor::Green, 1, 1, 5, row.disposal},
                                                {GifColor::Blue, 0, 1, 5, 1}})));
    EXPECT_EQ(pixelsOf(picture), (std::vector<QColor>{Qt::red, Qt::red}));
    showFrame(picture, 1);
    EXPECT_EQ(pixelsOf(picture), (std::vector<QColor>{Qt::red, Qt::green})) << row.disposal;
    showFrame(picture, 2);
    EXPECT_EQ(pixelsOf(picture), (std::vector<QColor>{Qt::blue, row.right})) << row.disposal;
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
