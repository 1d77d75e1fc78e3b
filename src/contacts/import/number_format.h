// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

namespace parlexo {

/// Formats a number as a user would type it: whole numbers with all digits and without an exponent.
[[nodiscard]] QString numberText(double value);

/// Likewise for a number in a workbook's XML. Returns any number of plain digits, and text that is not a
/// number, unchanged.
[[nodiscard]] QString numberText(QStringView written);

/// Returns whether a workbook's number format, such as "dd/mm/yyyy", displays numbers as dates or times.
[[nodiscard]] bool isDateFormat(QStringView format);

/// Formats a workbook's serial number, days since 30 December 1899 or 1 January 1904, as a date, with the
/// time unless it is midnight. Returns numberText() for a number out of range.
[[nodiscard]] QString dateText(double serial, bool since1904);

/// Returns whether a cell may contain a phone number: at least six digits, no letter and no delimiter.
[[nodiscard]] bool isPossiblePhoneNumber(QStringView cell);

}  // namespace parlexo
