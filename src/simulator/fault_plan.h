// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "simulator/fault.h"

namespace parlexo::simulator {

/// The misbehaviours that are set, and which of them applies next.
class FaultPlan {
 public:
  void add(const Fault& fault) { faults_.push_back(fault); }
  void clear() { faults_.clear(); }

  /// The oldest fault that applies to a call of `operation` (or to "locator"), taken away when it was set
  /// for one call only; none when the call may pass.
  [[nodiscard]] std::optional<Fault> forCall(const QString& operation);
  /// Whether a connection that was just made is to be refused.
  [[nodiscard]] bool refusesConnection();

 private:
  template <class Applies>
  std::optional<Fault> take(Applies applies);

  std::vector<Fault> faults_;
};

}  // namespace parlexo::simulator
