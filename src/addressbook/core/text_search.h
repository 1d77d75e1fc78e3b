// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <QString>
#include <QStringView>

namespace parlexo {

/// Finds among many short texts those that hold what the user types. Each text is folded and encoded once
/// and all lie behind each other in one block, so that 100,000 contacts can be searched at every keystroke.
class TextSearch {
 public:
  /// Makes room for this many texts.
  void reserve(std::size_t texts);
  /// Adds a field to the text that is being built; no match crosses from one field into the next.
  void addField(QStringView field);
  /// Ends the text; the next field begins another one.
  void endText() { ends_.push_back(block_.size()); }

  /// The numbers, from 0 and rising, of the texts in which every word of `typed` occurs, without regard to
  /// case and in any order. Words are separated by white space; without a word every text is found.
  [[nodiscard]] std::vector<int> find(const QString& typed) const;
  /// Likewise, looking only at the texts in `among`.
  [[nodiscard]] std::vector<int> find(const QString& typed, const std::vector<int>& among) const;

 private:
  std::string block_;
  std::vector<std::size_t> ends_;
};

}  // namespace parlexo
