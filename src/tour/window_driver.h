// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace parlexo {

/// Operates a window by its visible texts, with key and mouse events. Unless stated otherwise, functions
/// return false if the control is missing, hidden or disabled.
namespace driver {

/// Returns the front window if its title starts with `title`, otherwise null.
[[nodiscard]] QWidget* frontWindowTitled(const QString& title);

/// Types `text` into the control whose label reads `label` (without the mnemonic).
[[nodiscard]] bool typeInto(QWidget* window, const QString& label, const QString& text);
/// Clicks the button with this text (with the mnemonic).
[[nodiscard]] bool click(QWidget* window, const QString& buttonText);
/// Toggles the check box with this text (with the mnemonic).
[[nodiscard]] bool toggle(QWidget* window, const QString& boxText);
/// Opens the tab with this text (without the mnemonic).
[[nodiscard]] bool openTab(QWidget* window, const QString& text);
/// Toggles the check box of the row whose second column reads `name`, in the list with the accessible name
/// `list`.
[[nodiscard]] bool toggleRow(QWidget* window, const QString& list, const QString& name);
/// Returns whether a visible label or text field contains `text`.
[[nodiscard]] bool showsText(QWidget* window, const QString& text);
/// Selects all rows of the list with the accessible name `list`. Returns false if the list is empty.
[[nodiscard]] bool selectAll(QWidget* window, const QString& list);
/// Returns the texts of a column of the list with the accessible name `list`, separated by ", ".
[[nodiscard]] QString readColumn(QWidget* window, const QString& list, int column);

}  // namespace driver

}  // namespace parlexo
