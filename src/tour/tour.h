// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include <QElapsedTimer>
#include <QObject>
#include <QString>

class QWidget;

namespace parlexo {

/// One user action of the tour. Windows and controls are found by their English texts, so the tour needs a
/// client without a translation.
struct TourStep {
  QString picture;                              ///< base name of the screenshot taken before the action
  QString description;                          ///< printed with the screenshot's name
  QString window;                               ///< start of the title of the window to act on
  std::function<bool(QWidget* window)> action;  ///< returns false if a control is missing or disabled
};

/// Returns the steps through all pages: log in with `user` and `password`, send messages and query their
/// status, add and import contacts, visit the account pages and exit. Files to send are created in `folder`.
[[nodiscard]] std::vector<TourStep> createTourPlan(const QString& user, const QString& password,
                                                   const QString& folder);

/// Drives the program through a list of steps, as a user would. Prints a line and saves a screenshot for each
/// step.
class Tour : public QObject {
  Q_OBJECT

 public:
  /// Screenshots are saved in `folder`, which is created if missing.
  Tour(std::vector<TourStep> steps, const QString& folder);

  /// Starts the tour; it runs in the event loop. A failure ends the tour and the program with exit code 1.
  void start();
  /// Returns true once all steps have succeeded.
  [[nodiscard]] bool succeeded() const { return !failed_ && next_ == steps_.size(); }

 private:
  void waitForWindow();
  void runStep(QWidget* window);
  void fail(const QString& reason);

  std::vector<TourStep> steps_;
  std::size_t next_ = 0;
  bool failed_ = false;
  QString folder_;
  QElapsedTimer waiting_;
};

}  // namespace parlexo
