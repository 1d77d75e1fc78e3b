// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look.h"

#include <limits>

#include <QScrollBar>

#include "tests/support/widgets.h"

namespace parlexo::test {
namespace {

TEST(Look, dialogUnitsGrowWithTheFont) {
  QWidget small;
  QWidget large;
  QFont font = small.font();
  font.setPixelSize(12);
  small.setFont(font);
  font.setPixelSize(24);
  large.setFont(font);
  const QSize one = dialogUnits(small, 400, 400);
  const QSize two = dialogUnits(large, 400, 400);
  EXPECT_NEAR(two.width(), 2 * one.width(), 0.05 * two.width());
  EXPECT_NEAR(two.height(), 2 * one.height(), 0.05 * two.height());
  EXPECT_GT(one.width(), one.height()) << "a letter is wider than half its height";
}

/// A visible scroll bar of 200 pixels.
struct SampleBar {
  SampleBar(Qt::Orientation orientation, int maximum, int page) : bar(orientation) {
    bar.setRange(0, maximum);
    bar.setPageStep(page);
    const bool horizontal = orientation == Qt::Horizontal;
    bar.resize(horizontal ? 200 : bar.sizeHint().width(), horizontal ? bar.sizeHint().height() : 200);
    bar.show();
  }
  QScrollBar bar;
};

TEST(FlatScrollBar, thumbCanBeDraggedAndGrooveScrollsByPages) {
  for (const auto orientation : {Qt::Vertical, Qt::Horizontal}) {
    for (const int maximum : {100, 100000, std::numeric_limits<int>::max()}) {
      SampleBar sample(orientation, maximum, 10);
      const auto at = [&](int along) {
        return orientation == Qt::Vertical ? QPoint(6, along) : QPoint(along, 6);
      };
      QTest::mouseClick(&sample.bar, Qt::LeftButton, {}, at(150));
      EXPECT_EQ(sample.bar.value(), 10) << "a click in the groove goes on by one page of " << maximum;
      sample.bar.setValue(0);
      QTest::mousePress(&sample.bar, Qt::LeftButton, {}, at(14));
      QTest::mouseMove(&sample.bar, at(250));
      QTest::mouseRelease(&sample.bar, Qt::LeftButton, {}, at(250));
      EXPECT_EQ(sample.bar.value(), maximum) << "the thumb goes to the very end of " << maximum;
    }
  }
}

}  // namespace
}  // namespace parlexo::test
