// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

#include "ui/quiet_moment.h"

namespace parlexo {

/// Shows the news above the main window without disturbing typing: the dialog waits for a quiet moment, and
/// keys pressed just as it opens still go to the focused text field.
class NewsAnnouncement {
 public:
  /// Starts to monitor the user's input. `window` must outlive this object.
  explicit NewsAnnouncement(QWidget& window) : window_(window), quietMoment_(window) {}

  /// Opens the dialog with `news` later; returns immediately.
  void announce(const QString& news);

 private:
  void show(const QString& news);

  QWidget& window_;
  QuietMoment quietMoment_;
};

}  // namespace parlexo
