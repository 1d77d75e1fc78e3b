// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace parlexo {

/// The window over which a new dialog belongs: the topmost modal one, otherwise the active one, otherwise the
/// main window, which counts also while another program is active. Null when no window is open.
[[nodiscard]] QWidget* frontWindow();

}  // namespace parlexo
