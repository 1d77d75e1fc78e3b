// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace parlexo {

/// Makes this process, for good, a reader of what strangers made: it may use `memory` bytes beyond those that
/// it uses now and `seconds` of processor time, it ends in silence when it crashes, and its standard input
/// gives every byte as it is.
void confineHelper(std::size_t memory, unsigned seconds);

}  // namespace parlexo
