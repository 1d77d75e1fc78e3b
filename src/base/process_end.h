// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace parlexo {

/// What main() returns, called last of all: the exit code. Where the runtime's own clean-up can't be trusted
/// to come to its end, this ends the process itself.
int endProcess(int exitCode);

}  // namespace parlexo
