// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// The file of the helper program `name`: beside the program itself or, in a package, where programs lie that
/// no user calls. Empty when it isn't there.
[[nodiscard]] QString helperProgram(const QString& name);

}  // namespace parlexo
