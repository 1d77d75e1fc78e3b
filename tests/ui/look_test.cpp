// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look.h"

#include <cmath>
#include <limits>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace parlexo {
namespace {

double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b) {
  const double bright = std::max(luminance(a), luminance(b));
  const double dark = std::min(luminance(a), luminance(b));
  return (bright + 0.05) / (dark + 0.05);
}

TEST(Look, textIsReadableOnEveryGround) {
  for (const QColor& ground : {look::gradientTop, look::dialogBackground, look::gradientBottom}) {
    EXPECT_GE(contrast(look::link, ground), 4.5);
    EXPECT_GE(contrast(look::focus, ground), 3.0);
  }
  const QPalette palette = QApplication::palette();
  EXPECT_GE(contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 4.5);
}

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

/// A shown scroll bar that stands alone, 200 pixels long.
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

TEST(FlatScrollBar, thumbCanBeGrabbedAndGrooveTurnsPages) {
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

TEST(FlatScrollBar, rightToLeftMirrorsTheThumb) {
  SampleBar sample(Qt::Horizontal, 100, 10);
  sample.bar.setLayoutDirection(Qt::RightToLeft);
  QTest::mouseClick(&sample.bar, Qt::LeftButton, {}, QPoint(50, 6));
  EXPECT_EQ(sample.bar.value(), 10);
}

}  // namespace
}  // namespace parlexo
