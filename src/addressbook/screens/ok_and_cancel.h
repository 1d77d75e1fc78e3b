// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QDialog;
class QLayout;

namespace parlexo {

/// The last row of a dialog that edits something: "OK", its default, and "Cancel". The caller's layout takes
/// the row.
[[nodiscard]] QLayout* okAndCancelRow(QDialog& dialog);

}  // namespace parlexo
