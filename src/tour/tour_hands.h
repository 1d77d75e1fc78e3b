// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QAbstractItemView;
class QWidget;

namespace parlexo {

/// What a person's eyes and hands do in a window: find things by what is written on them, and use keys and
/// mouse. Every function returns false when the thing is not there, hidden or disabled.
namespace hands {

/// The window in front whose title begins with `title`; null when another one is in front.
[[nodiscard]] QWidget* windowInFront(const QString& title);

/// Types `text` into the control that the label `label` (without its mnemonic) belongs to.
[[nodiscard]] bool typeInto(QWidget* window, const QString& label, const QString& text);
/// Clicks the button with this text, mnemonic included.
[[nodiscard]] bool press(QWidget* window, const QString& buttonText);
/// Ticks or unticks the check box with this text.
[[nodiscard]] bool toggle(QWidget* window, const QString& boxText);
/// Brings the tab with this text (without its mnemonic) to the front.
[[nodiscard]] bool showTab(QWidget* window, const QString& text);
/// Ticks the check box of the row whose second column reads `name`, in the list called `list`.
[[nodiscard]] bool tick(QWidget* window, const QString& list, const QString& name);
/// Whether a label or a text field reads something with `words` in it.
[[nodiscard]] bool reads(QWidget* window, const QString& words);
/// Selects every row of the list called `list`; false also when it is empty.
[[nodiscard]] bool selectAll(QWidget* window, const QString& list);
/// What stands in the control that the label belongs to, and in a list's cells, as text.
[[nodiscard]] QString readList(QWidget* window, const QString& list, int column);

}  // namespace hands

}  // namespace parlexo
