// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QVBoxLayout;
class QWidget;

namespace parlexo {

/// The layout of a dialog whose controls stand below one another, with the program's animation on top.
[[nodiscard]] QVBoxLayout* createColumn(QWidget& dialog);

}  // namespace parlexo
