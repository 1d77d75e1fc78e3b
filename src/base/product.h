// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// The client's own version, shown in titles and compared with the locator's announcement.
inline constexpr char clientVersion[] = "2.24";

/// The one gateway protocol version that this client speaks.
inline constexpr int protocolVersion = 103;

/// The web host of the service as compiled in (the CMake variable PARLEXO_SERVICE_HOST).
[[nodiscard]] QString defaultServiceHost();

/// Sets the host that webPage() uses for the rest of the run (the setting "Service"/"Host"). An empty host
/// puts the compiled one back.
void setServiceHost(const QString& host);

/// The address of a page on the service's web site, always HTTPS; `path` begins with "/" or is empty.
[[nodiscard]] QString webPage(const QString& path);

}  // namespace parlexo
