// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QString>

namespace parlexo {

/// One contact of the address book, as it lives in memory. Strings may be longer here than the file's
/// fields, which cut them (docs/file-formats.md).
struct ContactRecord {
  static constexpr int extraCount = 6;

  QString name;           ///< unique, case-sensitive key
  QString phone;          ///< "+" and digits; may be empty
  QString supportsSms;    ///< "Y" or "N"; read without regard to case
  QString supportsMedia;  ///< "Y" or "N": can receive WAP and/or MMS
  QString fax;            ///< "+" and digits; may be empty
  QString email;
  std::array<QString, extraCount> extra;  ///< Extra 1 to Extra 6, free attributes
};

}  // namespace parlexo
