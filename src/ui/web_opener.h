// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include <QUrl>

namespace parlexo {

/// Opens a web page outside the program; false when it could not. Replaced in tests.
using WebOpener = std::function<bool(const QUrl& page)>;

/// Opens `page` in the user's browser. Anything but http and https is refused (false), because the system
/// would run whatever program belongs to the scheme.
bool openInBrowser(const QUrl& page);

/// Whether `page` is an address that may be handed to the browser.
[[nodiscard]] bool isWebAddress(const QUrl& page);

}  // namespace parlexo
