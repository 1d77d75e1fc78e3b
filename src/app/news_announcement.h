// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

#include "ui/quiet_moment.h"

namespace parlexo {

/// Shows the news over the main window without taking what the user types: the dialog waits for a quiet
/// moment, and keys that are pressed just as it opens still go to the field in which the user was typing.
class NewsAnnouncement {
 public:
  /// Input counts from now on. `window` must outlive this object.
  explicit NewsAnnouncement(QWidget& window) : window_(window), quietMoment_(window) {}

  /// Returns at once; the dialog opens later.
  void announce(const QString& news);

 private:
  void show(const QString& news);

  QWidget& window_;
  QuietMoment quietMoment_;
};

}  // namespace parlexo
