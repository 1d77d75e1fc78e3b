#pragma once

namespace parlexo {

/// Tells assistive tools about the program's own buttons, which Qt knows only as widgets: role, name from
/// the text without its mnemonic, and the press action. Cheap after the first call.
void installButtonAccessibility();

}  // namespace parlexo
