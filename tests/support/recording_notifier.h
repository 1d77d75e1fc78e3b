// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <QString>
#include <QStringList>

#include "base/notifier.h"

namespace parlexo::test {

/// What the user sees during a test, one line for each event, in order.
using Journal = QStringList;

/// Records the messages instead of showing them. Answers Ok, or the values of `answers`, front first.
struct RecordingNotifier final : Notifier {
  struct Shown {
    QString text;
    unsigned style;
    int suppressibleNumber;

    /// Such as "16 text", or "64/146 text" for a message that can be suppressed.
    [[nodiscard]] QString line() const {
      const QString number = suppressibleNumber == 0 ? QString() : u'/' + QString::number(suppressibleNumber);
      return QString::number(style) + number + u' ' + text;
    }
  };

  /// Appends the line of each message to `journal`, unless it is null.
  explicit RecordingNotifier(Journal* journal = nullptr) : journal_(journal) {}

  MessageResult show(const QString& text, unsigned style, int suppressibleNumber = 0) override {
    shown.push_back({text, style, suppressibleNumber});
    if (journal_) *journal_ << shown.back().line();
    if (onShow) onShow();
    if (answers.empty()) return MessageResult::Ok;
    const MessageResult answer = answers.front();
    answers.erase(answers.begin());
    return answer;
  }

  /// The texts shown since the last call.
  [[nodiscard]] std::vector<std::string> popTexts() {
    std::vector<std::string> texts;
    for (const Shown& message : std::exchange(shown, {})) texts.push_back(message.text.toStdString());
    return texts;
  }

  /// The lines shown since the last call.
  [[nodiscard]] QStringList popLines() {
    QStringList lines;
    for (const Shown& message : std::exchange(shown, {})) lines << message.line();
    return lines;
  }

  std::vector<Shown> shown;
  std::vector<MessageResult> answers;
  std::function<void()> onShow;

 private:
  Journal* journal_;
};

}  // namespace parlexo::test
