// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include <QString>

class QWidget;

namespace parlexo {

/// One thing that a person does with the program.
struct TourStep {
  QString picture;                           ///< the picture's file name without ".png"
  QString account;                           ///< what the person sees and does
  QString window;                            ///< how the title of the window begins that must be in front
  std::function<bool(QWidget* window)> act;  ///< false when the window lacks what the person needs
};

/// The way through the program that shows what it does: in with `user` and `password`, a message sent and
/// followed, every other page looked at, and out. Files to send are made in `folder`.
[[nodiscard]] std::vector<TourStep> tourPlan(const QString& user, const QString& password,
                                             const QString& folder);

}  // namespace parlexo
