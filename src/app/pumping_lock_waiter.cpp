#include "app/pumping_lock_waiter.h"

#include <chrono>

#include <QEventLoop>
#include <QTimer>

#include "ui/input_block.h"

namespace parlexo {

void PumpingLockWaiter::pause() {
  using namespace std::chrono_literals;
  // What is pressed meanwhile must not reach a page: it would use the store while the store waits.
  const InputBlock block;
  QEventLoop loop;
  QTimer::singleShot(500ms, &loop, &QEventLoop::quit);
  loop.exec();
}

}  // namespace parlexo
