#include "messaging/core/status_log.h"

#include <utility>

namespace parlexo {

void StatusLog::add(StatusEntry entry) {
  const QString receipt = entry.receipt;
  entries_.insert_or_assign(receipt, std::move(entry));
  ++revision_;
}

bool StatusLog::setStatus(const QString& receipt, const QString& status) {
  const auto found = entries_.find(receipt);
  if (found == entries_.end()) return false;
  found->second.status = status;
  ++revision_;
  return true;
}

void StatusLog::clear() {
  entries_.clear();
  ++revision_;
}

}  // namespace parlexo
