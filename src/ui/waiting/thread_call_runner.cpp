// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/waiting/thread_call_runner.h"

#include <utility>

#include "ui/waiting/progress_box.h"
#include "ui/waiting/task_wait.h"

namespace parlexo {

ThreadCallRunner::ThreadCallRunner(ProgressBox& progress) : ThreadCallRunner(progress, Timing()) {}

ThreadCallRunner::ThreadCallRunner(ProgressBox& progress, Timing timing)
    : progress_(progress), timing_(timing) {}

bool ThreadCallRunner::run(Task task) {
  TaskWait wait(progress_, timing_.untilBox, timing_.untilCancel, [this] { cancel(); });
  waits_.push_back(&wait);
  if (progress_.isCancelled()) wait.cancel(timing_.afterCancel);
  const bool ended = wait.run(std::move(task));
  std::erase(waits_, &wait);
  return ended;
}

void ThreadCallRunner::cancel() {
  for (TaskWait* wait : waits_) wait->cancel(timing_.afterCancel);
}

}  // namespace parlexo
