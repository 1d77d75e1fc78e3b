// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// The version of the program, from project() in CMakeLists.txt. Shown in titles and compared with the
/// version that the locator document announces.
extern const char clientVersion[];

/// The gateway protocol version that this client implements.
inline constexpr int protocolVersion = 103;

/// The web host of the service set at build time (the CMake variable PARLEXO_SERVICE_HOST).
[[nodiscard]] QString defaultServiceHost();

/// Sets the host that webPage() uses (the setting "Service"/"Host"). An empty `host` restores the default.
/// Process-wide; call before any other thread starts.
void setServiceHost(const QString& host);

/// Returns the HTTPS address of a page on the service's web site. `path` starts with "/" or is empty.
[[nodiscard]] QString webPage(const QString& path);

}  // namespace parlexo
