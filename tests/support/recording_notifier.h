// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include <QString>
#include <QStringList>

#include "base/notifier.h"

namespace parlexo {

/// Keeps what the program would show. Answers Ok, or what `answers` holds, front first.
class RecordingNotifier final : public Notifier {
 public:
  struct Shown {
    QString text;
    unsigned style;
  };

  MessageResult show(const QString& text, unsigned style, int /*suppressibleNumber*/ = 0) override {
    shown.push_back({text, style});
    if (onShow) onShow();
    if (answers.empty()) return MessageResult::Ok;
    const MessageResult answer = answers.front();
    answers.erase(answers.begin());
    return answer;
  }

  /// The texts shown since the last call.
  [[nodiscard]] std::vector<std::string> takeTexts() {
    std::vector<std::string> texts;
    for (const Shown& message : shown) texts.push_back(message.text.toStdString());
    shown.clear();
    return texts;
  }

  /// The same with their styles in front, such as "16 text".
  [[nodiscard]] QStringList takeLines() {
    QStringList lines;
    for (const Shown& message : std::exchange(shown, {}))
      lines << QString::number(message.style) + u' ' + message.text;
    return lines;
  }

  std::vector<Shown> shown;
  std::vector<MessageResult> answers;
  std::function<void()> onShow;
};

}  // namespace parlexo
