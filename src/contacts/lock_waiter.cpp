// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/lock_waiter.h"

#include <chrono>
#include <thread>

namespace parlexo {

qint64 SleepingLockWaiter::nowSeconds() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::seconds>(now).count();
}

void SleepingLockWaiter::pause() {
  using namespace std::chrono_literals;
  std::this_thread::sleep_for(500ms);
}

}  // namespace parlexo
