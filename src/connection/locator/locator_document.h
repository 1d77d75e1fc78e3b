// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QByteArray>

#include "base/run_state.h"

namespace parlexo {

/// Where the gateway is, as the locator document tells. The document is read by lines and not as XML: line 1
/// is skipped, line 2 is the server element with its four attributes, the first later line that names the
/// product "client" tells its version. Numbers are read as atoi() does: what does not begin with one is 0.
/// Returns nothing when a part is missing or has another form.
[[nodiscard]] std::optional<GatewayLocation> parseLocatorDocument(const QByteArray& document);

}  // namespace parlexo
