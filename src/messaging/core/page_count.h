// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QString>

namespace parlexo {

/// How many pages the TIFF or PDF document at `path` has. None when it is neither, can't be read, is locked
/// by a password or damaged, is larger than 64 MB, or needs more than ten seconds or 512 MB to be counted. A
/// TIFF's reduced pictures of its pages don't count. Blocks meanwhile; may be called from any thread.
[[nodiscard]] std::optional<int> pageCount(const QString& path);

}  // namespace parlexo
