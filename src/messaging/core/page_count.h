#pragma once

#include <optional>

#include <QString>

namespace parlexo {

/// How many pages the TIFF or PDF document at `path` has. None when it is neither, can't be read, is locked
/// by a password or damaged, is larger than 64 MB, and where the program was built without the libraries that
/// know. A TIFF's reduced pictures of its pages don't count.
[[nodiscard]] std::optional<int> pageCount(const QString& path);

}  // namespace parlexo
