// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>

#include <QByteArrayView>

namespace parlexo {

/// The bytes of a fixed-width field up to its first zero byte, or all of them when it fills the field.
[[nodiscard]] inline QByteArrayView untilZero(QByteArrayView bytes) {
  return bytes.first(std::find(bytes.begin(), bytes.end(), '\0') - bytes.begin());
}

}  // namespace parlexo
