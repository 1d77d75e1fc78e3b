// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QByteArray>

#include "base/run_state.h"

namespace parlexo {

/// Parses the locator document, line by line rather than as XML: line 1 is skipped, line 2 must be the server
/// element with its four attributes, and the first later line for the product "client" must contain its
/// version. Numbers are read as by leadingNumber(). Returns nullopt if a part is missing or malformed.
[[nodiscard]] std::optional<GatewayLocation> parseLocatorDocument(const QByteArray& document);

}  // namespace parlexo
