// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include "base/progress.h"
#include "tests/support/recording_notifier.h"

namespace parlexo::test {

/// Records the use of the progress box.
struct RecordingProgress final : Progress {
  /// Appends "(box)", "(box) text" and "(no box)" to `journal` as the box comes and goes, unless it is null.
  explicit RecordingProgress(Journal* journal = nullptr) : journal_(journal) {}

  void show(const QString& text = {}) override {
    opened << text;
    if (journal_) *journal_ << (QStringLiteral("(box) ") + text).trimmed();
  }
  void setText(const QString& text) override {
    texts << text;
    if (onText) onText(text);
  }
  void setTransfer(const Transfer& transfer) override { transfers.push_back(transfer); }
  void hide() override {
    if (journal_) *journal_ << QStringLiteral("(no box)");
  }

  QStringList opened;  ///< the texts passed to show()
  QStringList texts;   ///< the texts passed to setText()
  std::vector<Transfer> transfers;
  std::function<void(const QString&)> onText;

 private:
  Journal* journal_;
};

}  // namespace parlexo::test
