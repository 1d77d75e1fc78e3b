// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

#include <QString>

#include "base/transfer.h"

namespace parlexo {

/// The one progress box of the program, seen from code that knows no window.
class Progress {
 public:
  virtual ~Progress() = default;

  /// Shows the box. `text` becomes its label only when no box is showing yet and `text` is not empty; a
  /// box that is already there is raised and keeps its label.
  virtual void show(const QString& text = {}) = 0;
  /// Changes the label of a showing box; an empty text puts the default label back. Without a box nothing
  /// happens. Lets the box repaint, at most every 30 ms.
  virtual void setText(const QString& text) = 0;
  /// Shows below the label how far `transfer` has come, until the box goes. Without a box nothing happens.
  virtual void follow(const Transfer& /*transfer*/) {}
  /// Lets the box offer Cancel once the tasks under it have taken `wait` in all, instead of the longer
  /// default. Without a box nothing happens.
  virtual void offerCancelAfter(std::chrono::milliseconds /*wait*/) {}
  /// Removes the box; harmless when there is none.
  virtual void hide() = 0;
  /// The label of a showing box; a null string when there is none.
  [[nodiscard]] virtual QString text() const { return {}; }

 protected:
  Progress() = default;
  Progress(const Progress&) = default;
  Progress& operator=(const Progress&) = default;
};

/// Shows the progress box for the length of a scope.
class ProgressScope {
 public:
  explicit ProgressScope(Progress& progress, const QString& text = {}) : progress_(progress) {
    progress_.show(text);
  }
  ~ProgressScope() { progress_.hide(); }
  ProgressScope(const ProgressScope&) = delete;
  ProgressScope& operator=(const ProgressScope&) = delete;

 private:
  Progress& progress_;
};

}  // namespace parlexo
