// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include <QString>

namespace parlexo {

/// An amount of data as people read it: "1 byte", "812 bytes", "34.2 KB", "2 MB". A KB has 1024 bytes; at
/// most one decimal, rounded to the nearest.
[[nodiscard]] QString dataSizeText(std::int64_t bytes);

/// The same to the byte: "51,201 bytes".
[[nodiscard]] QString exactSizeText(std::int64_t bytes);

}  // namespace parlexo
