// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace parlexo {

/// Exposes the program's own buttons, which Qt knows only as widgets, to assistive tools: role, name from the
/// text without its mnemonic, key binding, and the press action. Cheap after the first call.
void installButtonAccessibility();

}  // namespace parlexo
