// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/locator/leading_number.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace parlexo {

int leadingNumber(const QByteArray& text) {
  const long long number = std::strtoll(text.constData(), nullptr, 10);
  return static_cast<int>(
      std::clamp<long long>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

}  // namespace parlexo
