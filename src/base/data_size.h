// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include <QString>

namespace parlexo {

/// A size for display: "1 byte", "812 bytes", "34.2 KB", "2 MB". 1 KB is 1024 bytes; KB and MB are rounded to
/// one decimal, without a trailing ".0".
[[nodiscard]] QString dataSizeText(std::int64_t bytes);

/// A size in bytes with digit groups: "51,201 bytes".
[[nodiscard]] QString exactSizeText(std::int64_t bytes);

}  // namespace parlexo
