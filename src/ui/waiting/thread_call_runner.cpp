#include "ui/waiting/thread_call_runner.h"

#include <utility>

#include "ui/waiting/exchange_wait.h"
#include "ui/waiting/progress_box.h"

namespace parlexo {

ThreadCallRunner::ThreadCallRunner(ProgressBox& progress) : ThreadCallRunner(progress, Timing()) {}

ThreadCallRunner::ThreadCallRunner(ProgressBox& progress, Timing timing)
    : progress_(progress), timing_(timing) {}

bool ThreadCallRunner::run(Exchange exchange) {
  ExchangeWait wait(progress_, timing_.untilBox, timing_.untilCancel, [this] { cancel(); });
  waits_.push_back(&wait);
  if (progress_.isCancelled()) wait.cancel(timing_.afterCancel);
  const bool ended = wait.run(std::move(exchange));
  std::erase(waits_, &wait);
  return ended;
}

void ThreadCallRunner::cancel() {
  for (ExchangeWait* wait : waits_) wait->cancel(timing_.afterCancel);
}

}  // namespace parlexo
