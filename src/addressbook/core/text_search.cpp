// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/text_search.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <string_view>

#include <QByteArray>
#include <QStringList>

namespace parlexo {

namespace {

constexpr char fieldEnd = '\t';  // a blank like those between words, so that no word can hold it
constexpr char16_t lastAscii = 0x7F;
constexpr std::size_t usualTextSize = 64;

char lowered(QChar ascii) {
  const char letter = ascii.toLatin1();
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// UTF-8 can be searched byte by byte: no character's bytes begin inside another's.
QByteArray searchable(const QString& text) {
  return text.toCaseFolded().toUtf8();
}

class Words {
 public:
  explicit Words(const QString& typed) {
    for (const QString& word : typed.simplified().split(u' ', Qt::SkipEmptyParts))
      words_.push_back(searchable(word).toStdString());
  }

  [[nodiscard]] bool allIn(std::string_view text) const {
    return std::all_of(words_.begin(), words_.end(),
                       [text](const std::string& word) { return text.find(word) != std::string_view::npos; });
  }

 private:
  std::vector<std::string> words_;
};

}  // namespace

void TextSearch::reserve(std::size_t texts) {
  ends_.reserve(texts);
  block_.reserve(texts * usualTextSize);
}

void TextSearch::addField(QStringView field) {
  if (field.isEmpty()) return;
  // Nearly every field is plain ASCII, which needs none of Unicode's tables.
  const std::size_t begin = block_.size();
  for (const QChar character : field) {
    if (character.unicode() > lastAscii) {
      block_.resize(begin);
      const QByteArray bytes = searchable(field.toString());
      block_.append(bytes.constData(), static_cast<std::size_t>(bytes.size()));
      break;
    }
    block_.push_back(lowered(character));
  }
  block_.push_back(fieldEnd);
}

std::vector<int> TextSearch::find(const QString& typed) const {
  std::vector<int> all(ends_.size());
  std::iota(all.begin(), all.end(), 0);
  return find(typed, all);
}

std::vector<int> TextSearch::find(const QString& typed, const std::vector<int>& among) const {
  const Words words(typed);
  const std::string_view block = block_;
  std::vector<int> found;
  found.reserve(among.size());
  std::copy_if(among.begin(), among.end(), std::back_inserter(found), [&](int number) {
    const auto text = static_cast<std::size_t>(number);
    const std::size_t begin = text == 0 ? 0 : ends_[text - 1];
    return words.allIn(block.substr(begin, ends_[text] - begin));
  });
  return found;
}

}  // namespace parlexo
