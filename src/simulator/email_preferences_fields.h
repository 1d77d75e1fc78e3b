// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulator/operations.h"
#include "simulator/simulator_options.h"

namespace parlexo::simulator {

/// Carries e-mail preferences from and to the records of the own account's and of the partner's operations,
/// whose fields have the same names.

/// The preferences of a request, but for the double-line flag: its name differs from operation to operation.
template <class Request>
[[nodiscard]] EmailPreferences readPreferences(const Request& request) {
  EmailPreferences preferences;
  preferences.enabled = request.bEmailEnable;
  preferences.code = textOf(request.sEmailCode);
  preferences.filter = request.bEmailFilter;
  preferences.address1 = textOf(request.sEmailFilter1);
  preferences.address2 = textOf(request.sEmailFilter2);
  preferences.address3 = textOf(request.sEmailFilter3);
  preferences.splitLong = request.bEmailSmsSplit;
  preferences.endAtKeyword = request.bEmailEndStop;
  return preferences;
}

/// Fills a response; `operations` keeps its texts.
template <class Response>
void writePreferences(const EmailPreferences& preferences, Response& response, Operations& operations) {
  response.bEmailEnable = preferences.enabled;
  response.sEmailCode = operations.keep(preferences.code);
  response.bEmailFilter = preferences.filter;
  response.sEmailFilter1 = operations.keep(preferences.address1);
  response.sEmailFilter2 = operations.keep(preferences.address2);
  response.sEmailFilter3 = operations.keep(preferences.address3);
  response.bEmailSmsSplit = preferences.splitLong;
  response.bEmailEndDoubleLine = preferences.endAtDoubleLine;
  response.bEmailEndStop = preferences.endAtKeyword;
}

}  // namespace parlexo::simulator
