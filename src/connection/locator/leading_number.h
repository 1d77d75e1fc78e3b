// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace parlexo {

/// The decimal number that `text` begins with, read as atoi() does: blanks and a sign may come first, what
/// follows the digits is passed over, a text without a number is 0. Numbers beyond an int become the nearest
/// one, where atoi() leaves the result open.
[[nodiscard]] int leadingNumber(const QByteArray& text);

}  // namespace parlexo
