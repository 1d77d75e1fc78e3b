#pragma once

#include <vector>

#include "app/main_dlg.h"

namespace parlexo {

/// The pages of the main window, in the order of its tabs.
[[nodiscard]] std::vector<MainTab> mainTabs();

}  // namespace parlexo
