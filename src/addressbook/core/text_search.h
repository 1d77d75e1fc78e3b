// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <QString>
#include <QStringView>

namespace parlexo {

/// Searches many short texts for the words that the user types. The texts are case-folded once and stored in
/// one block of UTF-8, which makes searching 100,000 contacts at every keystroke fast enough.
class TextSearch {
 public:
  /// Reserves memory for this many texts.
  void reserve(std::size_t texts);
  /// Appends a field to the current text. Matches don't span fields.
  void addField(QStringView field);
  /// Ends the current text; the next field begins a new one.
  void endText() { ends_.push_back(block_.size()); }

  /// Returns the indices, ascending from 0, of the texts that contain every word of `typed`,
  /// case-insensitively and in any order. Words are separated by white space. Returns all texts if there is
  /// no word.
  [[nodiscard]] std::vector<int> find(const QString& typed) const;
  /// Likewise, for the texts with indices in `among`.
  [[nodiscard]] std::vector<int> find(const QString& typed, const std::vector<int>& among) const;

 private:
  std::string block_;
  std::vector<std::size_t> ends_;
};

}  // namespace parlexo
