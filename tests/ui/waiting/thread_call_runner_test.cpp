// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/waiting/thread_call_runner.h"

#include <atomic>
#include <stdexcept>
#include <thread>

#include <QTimer>

#include "tests/support/test.h"
#include "tests/ui/waiting/sample_page.h"
#include "ui/waiting/progress_box.h"

namespace parlexo::test {
namespace {

CallRunner::Task lasting(std::chrono::milliseconds time) {
  return [time](const CancelFlag&) { std::this_thread::sleep_for(time); };
}

struct ThreadCallRunnerTest : testing::Test {
  ProgressBox progress_;
  ThreadCallRunner runner_{progress_, {.untilBox = 50ms, .afterCancel = 100ms}};
};

TEST_F(ThreadCallRunnerTest, boxAppearsForLongTasks) {
  for (const auto& [duration, shows] : {std::pair{1ms, false}, {200ms, true}}) {
    bool shown = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { shown = shown || progress_.isShowing(); });
    timer.start(5ms);
    EXPECT_TRUE(runner_.run(lasting(duration)));
    EXPECT_EQ(shown, shows);
    EXPECT_FALSE(progress_.isShowing());
  }
  progress_.show(u"Sending"_s);
  EXPECT_TRUE(runner_.run(lasting(120ms)));
  EXPECT_EQ(progress_.text(), u"Sending"_s) << "the caller's box stays and keeps its label";
}

TEST_F(ThreadCallRunnerTest, inputIsDroppedBeforeAndDuringTheBox) {
  SamplePage page;
  for (const auto when : {5ms, 100ms}) {
    QTimer::singleShot(when, [&] {
      page.queueClick();
      QTest::keyClick(&page.window, Qt::Key_E, Qt::AltModifier);
    });
  }
  EXPECT_TRUE(runner_.run(lasting(200ms)));
  QTest::qWait(150);
  EXPECT_EQ(page.clicks.count(), 0);
  QTest::mouseClick(page.send, Qt::LeftButton);
  EXPECT_EQ(page.clicks.count(), 1);
}

TEST_F(ThreadCallRunnerTest, tasksMayBeNested) {
  std::atomic<bool> outerDone = false;
  bool innerEnded = false;
  QTimer::singleShot(10ms, [&] {
    innerEnded = runner_.run(lasting(150ms));
    EXPECT_TRUE(outerDone) << "the outer one was to end first";
  });
  EXPECT_TRUE(runner_.run([&](const CancelFlag&) {
    std::this_thread::sleep_for(60ms);
    outerDone = true;
  }));
  EXPECT_TRUE(innerEnded);
  EXPECT_FALSE(progress_.isShowing());
}

TEST_F(ThreadCallRunnerTest, exceptionsBecomeAFailure) {
  EXPECT_FALSE(runner_.run([](const CancelFlag&) { throw std::runtime_error("broken"); }));
  EXPECT_FALSE(runner_.run([](const CancelFlag&) { throw 1; }));
  EXPECT_TRUE(runner_.run([](const CancelFlag&) {}));
}

TEST_F(ThreadCallRunnerTest, waitEndsOnlyWithTheWorker) {
  std::atomic<bool> done = false;
  QTimer::singleShot(5ms, [] { QCoreApplication::exit(); });
  EXPECT_TRUE(runner_.run([&](const CancelFlag&) {
    std::this_thread::sleep_for(100ms);
    done = true;
  }));
  EXPECT_TRUE(done);
}

/// A user who waits for the Cancel button of the box and then uses it.
struct CancelOffer : testing::Test {
  static QAbstractButton* button() {
    auto* found = boxes().isEmpty() ? nullptr : boxes().front()->findChild<QAbstractButton*>();
    return found && found->isVisible() ? found : nullptr;
  }

  /// Runs a task for the time `longest`; returns true if it was cancelled.
  bool isCancelled(const std::function<void(CConnectingDlg&)>& use, std::chrono::milliseconds longest = 3s) {
    std::atomic<bool> cancelled = false;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&] {
      if (!button() || !button()->isEnabled()) return;
      offeredAfter_ = clock_.elapsed();
      use(*boxes().front());
    });
    user.start(5ms);
    clock_.start();
    EXPECT_TRUE(runner_.run([&](const CancelFlag& cancel) {
      const auto end = std::chrono::steady_clock::now() + longest;
      while (!cancel.isRaised() && std::chrono::steady_clock::now() < end) std::this_thread::sleep_for(1ms);
      cancelled = cancel.isRaised();
    }));
    return cancelled;
  }

  static void click(CConnectingDlg&) { QTest::mouseClick(button(), Qt::LeftButton); }
  static void nothing(CConnectingDlg&) {}

  ProgressBox progress_;
  ThreadCallRunner runner_{progress_, {.untilBox = 20ms, .untilCancel = 200ms, .afterCancel = 100ms}};
  QElapsedTimer clock_;
  qint64 offeredAfter_ = -1;
};

TEST_F(CancelOffer, appearsLateAndCancelsByMouseOrKeys) {
  const std::pair<const char*, std::function<void(CConnectingDlg&)>> ways[] = {
      {"mouse", click},
      {"Escape", [](CConnectingDlg& box) { QTest::keyClick(&box, Qt::Key_Escape); }},
      {"Tab and Space", [](CConnectingDlg& box) {
         QTest::keyClick(box.windowHandle(), Qt::Key_Tab);
         QTest::keyClick(box.windowHandle(), Qt::Key_Space);
       }}};
  for (const bool callersBox : {false, true}) {
    for (const auto& [name, way] : ways) {
      if (callersBox) progress_.show(u"Sending"_s);
      EXPECT_TRUE(isCancelled(way)) << name;
      EXPECT_GE(offeredAfter_, 200) << name;
      progress_.hide();
    }
  }
}

TEST_F(CancelOffer, isNotShownForShortTasks) {
  QTimer::singleShot(80ms, [] { QTest::keyClick(boxes().front(), Qt::Key_Escape); });
  EXPECT_FALSE(isCancelled(click, 150ms));
  EXPECT_EQ(offeredAfter_, -1);
  EXPECT_FALSE(isCancelled(nothing, 300ms));
  EXPECT_GE(offeredAfter_, 200) << "the time of the box before does not count";
}

TEST_F(CancelOffer, appliesToAllTasksUnderOneBox) {
  progress_.show();
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(isCancelled(nothing, 80ms));
  EXPECT_TRUE(isCancelled(click));
  EXPECT_LT(offeredAfter_, 150) << "most of the time had passed already";
  EXPECT_TRUE(isCancelled(nothing)) << "the user did not want the next one either";
  progress_.hide();
  progress_.show();
  EXPECT_FALSE(isCancelled(nothing, 50ms));
}

TEST_F(CancelOffer, appearsDuringASeriesOfShortTasks) {
  ThreadCallRunner usual(progress_);
  progress_.show();
  progress_.offerCancelAfter(60ms);
  for (int i = 0; i < 100 && !button(); ++i)
    EXPECT_TRUE(usual.run([](const CancelFlag&) { std::this_thread::sleep_for(5ms); }));
  EXPECT_TRUE(button());
  progress_.hide();
  progress_.show();
  for (int i = 0; i < 3; ++i)
    EXPECT_TRUE(usual.run([](const CancelFlag&) { std::this_thread::sleep_for(40ms); }));
  EXPECT_FALSE(button()) << "the next box does not inherit the shorter wait";
}

TEST_F(ThreadCallRunnerTest, hangingTaskIsDetachedAfterACancel) {
  struct Shared {
    std::atomic<bool> goOn = false;
    std::atomic<bool> wentOn = false;
  };
  auto shared = std::make_shared<Shared>();
  QTimer::singleShot(10ms, [&] { runner_.cancel(); });
  EXPECT_FALSE(runner_.run([owned = shared](const CancelFlag&) {
    while (!owned->goOn) std::this_thread::sleep_for(1ms);
    owned->wentOn = true;
  }));
  EXPECT_FALSE(progress_.isShowing());
  EXPECT_EQ(shared.use_count(), 2) << "the worker still owns its part";
  shared->goOn = true;
  EXPECT_TRUE(QTest::qWaitFor([&] { return shared.use_count() == 1; }));
  EXPECT_TRUE(shared->wentOn);
}

}  // namespace
}  // namespace parlexo::test
