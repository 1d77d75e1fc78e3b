// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

namespace parlexo {

/// A number as a user would type it: whole numbers with all their digits and without an exponent.
[[nodiscard]] QString numberText(double value);

/// The same for a number as it stands in a workbook's XML; digits alone stay as they are, however many.
/// What is no number stays as well.
[[nodiscard]] QString numberText(QStringView written);

/// Whether a workbook's number format, like "dd/mm/yyyy", shows numbers as dates or times.
[[nodiscard]] bool isDateFormat(QStringView format);

/// The day, and the time where there is one, that a workbook's serial number stands for: days since the end
/// of 1899, or since 1904 began. A number that is no such day gives its numberText().
[[nodiscard]] QString dateText(double serial, bool since1904);

/// Whether a cell may hold a phone number: six digits or more, no letter and no delimiter.
[[nodiscard]] bool looksLikePhoneNumber(QStringView cell);

}  // namespace parlexo
