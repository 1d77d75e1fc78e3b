// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/client/background_queue.h"

#include <atomic>
#include <stdexcept>
#include <thread>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include "base/task_thread.h"
#include "connection/client/background_gateway.h"
#include "tests/support/fake_gateway.h"
#include "tests/support/stepping_worker.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

void handleEvents(std::chrono::milliseconds time) {
  QEventLoop loop;
  QTimer::singleShot(time, &loop, &QEventLoop::quit);
  loop.exec();
}

template <class Condition>
bool comesTrue(Condition condition) {
  QElapsedTimer clock;
  clock.start();
  while (!condition() && clock.elapsed() < 5000) handleEvents(5ms);
  return condition();
}

struct BackgroundQueueTest : testing::Test {
  void add(
      const std::string& name, std::function<bool()> isWanted = [] { return true; }) {
    queue_->add({[this, name](const CancelFlag&) { events_.push_back("run " + name); },
                 [this, name] { events_.push_back("deliver " + name); }, std::move(isWanted)});
  }

  std::vector<std::string> events_;
  SteppingWorker* worker_ = new SteppingWorker;  // the queue owns it
  std::optional<BackgroundQueue> queue_{std::in_place, std::unique_ptr<BackgroundWorker>(worker_), 10ms};
};

TEST_F(BackgroundQueueTest, taskIsCancelledByAUserCallAndRepeatedAfterIt) {
  DirectCallRunner direct;
  ForegroundRunner user(direct, *queue_);
  add("a");
  EXPECT_TRUE(user.run([&](const CancelFlag&) {
    EXPECT_TRUE(worker_->isCancelled());
    // The end of a nested call must not resume background work.
    EXPECT_TRUE(user.run([](const CancelFlag&) {}));
    handleEvents(30ms);
    worker_->finish();
    add("b");
    handleEvents(30ms);
    EXPECT_FALSE(worker_->isBusy());
  }));
  EXPECT_FALSE(worker_->isBusy()) << "another call of the user's may follow at once";
  EXPECT_TRUE(comesTrue([&] { return worker_->isBusy(); }));
  EXPECT_FALSE(worker_->isCancelled());
  worker_->finish();
  worker_->finish();
  EXPECT_THAT(events_, ElementsAre("run a", "run a", "deliver a", "run b", "deliver b"));
  EXPECT_FALSE(worker_->isBusy());
}

TEST_F(BackgroundQueueTest, constantUserCallsDelayItOnlyThreeTimes) {
  DirectCallRunner direct;
  ForegroundRunner user(direct, *queue_);
  add("a");
  add("b");
  bool isCancelled = true;
  for (int calls = 1; calls <= 4 && worker_->isBusy(); ++calls) {
    EXPECT_TRUE(user.run([&](const CancelFlag&) {
      isCancelled = worker_->isCancelled();
      worker_->finish();
    }));
    EXPECT_EQ(isCancelled, calls < 4);
    EXPECT_EQ(events_.back(), "run a") << "delivery waits for the end of the call";
    EXPECT_TRUE(comesTrue([&] { return worker_->isBusy(); }));
  }
  worker_->finish();
  EXPECT_THAT(events_, ElementsAre("run a", "run a", "run a", "run a", "deliver a", "run b", "deliver b"));
}

TEST_F(BackgroundQueueTest, obsoleteTasksAreNeitherRunNorDelivered) {
  bool isWanted = true;
  const auto wanted = [&isWanted] { return isWanted; };
  add("a", wanted);
  add("b", wanted);
  add("c");
  isWanted = false;
  worker_->finish();
  worker_->finish();
  EXPECT_THAT(events_, ElementsAre("run a", "run c", "deliver c"));
}

TEST_F(BackgroundQueueTest, deliveryMayBlockWhileOtherTasksEnd) {
  queue_->add({[](const CancelFlag&) {},
               [this] {
                 worker_->finish();  // as under a modal dialog
                 events_.emplace_back("dialog closed");
               },
               [] { return true; }});
  add("b");
  worker_->finish();
  EXPECT_THAT(events_, ElementsAre("run b", "deliver b", "dialog closed"));
}

struct BackgroundThreadTest : testing::Test {
  void add(CallRunner::Task task) {
    queue_->add({std::move(task), [this] { ++delivered_; }, [] { return true; }});
  }

  int delivered_ = 0;
  std::optional<BackgroundQueue> queue_{std::in_place};
};

TEST_F(BackgroundThreadTest, resultsArriveOnTheInterfaceThreadEvenAfterAnException) {
  std::thread::id worker;
  add([&](const CancelFlag&) { worker = std::this_thread::get_id(); });
  add([](const CancelFlag&) { throw std::runtime_error("broken"); });
  EXPECT_TRUE(comesTrue([this] { return delivered_ == 2; }));
  EXPECT_NE(worker, std::thread::id());
  EXPECT_NE(worker, std::this_thread::get_id());
}

TEST_F(BackgroundThreadTest, destructionCancelsAndDetachesARunningTask) {
  struct Shared {
    std::atomic<bool> goOn = false;
    std::atomic<bool> wasCancelled = false;
  };
  const auto shared = std::make_shared<Shared>();
  add([shared](const CancelFlag& cancel) {
    while (!shared->goOn) std::this_thread::sleep_for(1ms);
    shared->wasCancelled = cancel.isRaised();
  });
  QElapsedTimer clock;
  clock.start();
  queue_.reset();
  EXPECT_LT(clock.elapsed(), 2000);
  shared->goOn = true;
  EXPECT_TRUE(comesTrue([&] { return shared.use_count() == 1; })) << "the thread gives back what it owns";
  EXPECT_TRUE(shared->wasCancelled);
  handleEvents(20ms);
  EXPECT_EQ(delivered_, 0);
}

struct BackgroundGatewayTest : testing::Test {
  BackgroundGatewayTest() {
    state_.gateway.endpoint = QString::fromStdString(server_.endpoint());
    state_.session = u"first"_s;
    state_.userName = u"ann"_s;
  }

  auto recordResult() {
    return [this](const auto& reply) { results_.push_back(reply.result()); };
  }
  void queryNews() { gateway_.call<&GatewayClient::getNews>(*context_, recordResult()); }
  void queryBalance() {
    gateway_.call<&GatewayClient::getAccountBalance>(*context_, recordResult(), u"first"_s);
  }

  /// Returns when all queued results have been delivered or dropped.
  void handleEventsUntilIdle() {
    bool isIdle = false;
    queue_.add({[](const CancelFlag&) {}, [&isIdle] { isIdle = true; }, [] { return true; }});
    EXPECT_TRUE(comesTrue([&] { return isIdle; }));
  }

  FakeGateway server_{"HTTP/1.1 500 Internal Server Error\r\nContent-Length: 0\r\n\r\n"};
  RunState state_;
  BackgroundQueue queue_;
  BackgroundGateway gateway_{
      state_, queue_, {.connect = std::chrono::seconds(5), .silence = std::chrono::seconds(5)}};
  std::unique_ptr<QObject> context_ = std::make_unique<QObject>();
  std::vector<int> results_;
};

TEST_F(BackgroundGatewayTest, resultsForAnotherSessionUserOrAClosedWindowAreDropped) {
  const auto delivered = [this](const char* session, const char* user) {
    results_.clear();
    queryBalance();
    queryNews();
    state_.session = QLatin1String(session);
    state_.userName = QLatin1String(user);
    handleEventsUntilIdle();
    return results_.size();
  };
  EXPECT_EQ(delivered("first", "ann"), 2U) << "failures count as results";
  EXPECT_EQ(delivered("second", "ann"), 1U) << "news need no session";
  EXPECT_EQ(delivered("second", "bob"), 1U);
  queryNews();
  context_.reset();
  handleEventsUntilIdle();
  EXPECT_EQ(results_.size(), 1U) << "as before";
}

}  // namespace
}  // namespace parlexo::test
