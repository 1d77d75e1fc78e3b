// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include <QString>

namespace parlexo {

/// A number of the service to which people send messages for an account.
struct ReceivingNumber {
  const char* country;
  const char* number;
};

inline constexpr std::array<ReceivingNumber, 3> receivingNumbers{
    {{"Australian", "+61491570156"}, {"Malaysian", "+60312345678"}, {"China", "+861012345678"}}};

/// Whether `userName` is that of an account below another one. Such an account has no numbers of its own.
[[nodiscard]] inline bool belongsToParent(const QString& userName) {
  return userName.contains(u'@');
}

}  // namespace parlexo
