// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/fault_plan.h"

#include <algorithm>

namespace parlexo::simulator {

template <class Applies>
std::optional<Fault> FaultPlan::take(Applies applies) {
  const auto found = std::find_if(faults_.begin(), faults_.end(), applies);
  if (found == faults_.end()) return std::nullopt;
  Fault fault = *found;
  if (fault.once) faults_.erase(found);
  return fault;
}

std::optional<Fault> FaultPlan::forCall(const QString& operation) {
  return take([&operation](const Fault& fault) {
    if (fault.kind == FaultKind::Refuse) return false;
    if (fault.operation == operation) return true;
    if (fault.operation != QLatin1String("any") || operation == QLatin1String("locator")) return false;
    // Not every answer has a place for a code or a text.
    Fault ofThisCall = fault;
    ofThisCall.operation = operation;
    return problemWith(ofThisCall).isEmpty();
  });
}

bool FaultPlan::refusesConnection() {
  return take([](const Fault& fault) { return fault.kind == FaultKind::Refuse; }).has_value();
}

}  // namespace parlexo::simulator
