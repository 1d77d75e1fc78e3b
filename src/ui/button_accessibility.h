// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace parlexo {

/// Exposes PictureButton and HyperlinkLabel, which Qt would report as plain widgets, to assistive tools:
/// role, name (the text without its mnemonic), keyboard shortcut and press action. Further calls have no
/// effect.
void installButtonAccessibility();

}  // namespace parlexo
