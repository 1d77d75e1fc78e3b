// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ctime>

#include <QByteArray>

namespace parlexo::test {

/// The process lives in another time zone for the length of a scope.
class TimeZoneScope {
 public:
  explicit TimeZoneScope(const char* zone) { enter(zone); }
  ~TimeZoneScope() {
    if (wasSet_)
      enter(former_);
    else
      qunsetenv("TZ");
    tzset();
  }
  TimeZoneScope(const TimeZoneScope&) = delete;
  TimeZoneScope& operator=(const TimeZoneScope&) = delete;

 private:
  static void enter(const QByteArray& zone) {
    qputenv("TZ", zone);
    tzset();
  }

  const bool wasSet_ = qEnvironmentVariableIsSet("TZ");
  const QByteArray former_ = qgetenv("TZ");
};

}  // namespace parlexo::test
