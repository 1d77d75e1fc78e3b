#include "messaging/core/page_count.h"

namespace parlexo {

std::optional<int> pageCount(const QString& /*path*/) {
  return std::nullopt;
}

}  // namespace parlexo
