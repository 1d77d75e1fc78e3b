// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

#include <QString>

namespace parlexo {

/// What the status page says about its list: how many messages it shows, how many are in the log, and, when
/// they are more than the log's file will bring back at the next start, how many that will be.
[[nodiscard]] QString statusCountText(int shown, std::size_t all);

}  // namespace parlexo
