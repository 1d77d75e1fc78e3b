// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace parlexo {

/// Sandboxes this process for parsing untrusted input. It may use `memory` more bytes than it uses now and
/// `seconds` of CPU time; it crashes without a dialog or core dump; standard input is binary. Cannot be
/// undone. Failures are ignored.
void sandboxProcess(std::size_t memory, unsigned seconds);

}  // namespace parlexo
