#pragma once

#include <functional>

#include <QString>

class QWidget;

namespace parlexo {

/// Puts a separator and an entry that runs `action` into the system menu of `window`, the one behind the icon
/// of its title bar. Does nothing for an empty `text` and where windows have no such menu of their own.
void addToSystemMenu(QWidget& window, const QString& text, const std::function<void()>& action);

}  // namespace parlexo
