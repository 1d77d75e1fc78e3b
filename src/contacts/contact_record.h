// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QString>

namespace parlexo {

/// A contact of the address book. Strings may be longer than the fields of the file, which truncate them
/// (docs/file-formats.md).
struct ContactRecord {
  static constexpr int extraCount = 6;

  QString name;           ///< unique, case-sensitive key
  QString phone;          ///< "+" and digits; may be empty
  QString supportsSms;    ///< "Y" or "N", case-insensitive
  QString supportsMedia;  ///< "Y" or "N", case-insensitive: can receive WAP push and/or MMS
  QString fax;            ///< "+" and digits; may be empty
  QString email;
  std::array<QString, extraCount> extra;  ///< Extra 1 to Extra 6, free attributes
};

}  // namespace parlexo
