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

constexpr char fieldEnd = '\t';  // separates words like a space, so no word contains it
constexpr char16_t lastAscii = 0x7F;
constexpr std::size_t usualTextSize = 64;

char lowered(QChar ascii) {
  const char letter = ascii.toLatin1();
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// UTF-8 can be searched bytewise, because it is self-synchronising.
QByteArray searchable(const QString& text) {
  return text.toCaseFolded().toUtf8();
}

std::vector<std::string> searchableWords(const QString& typed) {
  std::vector<std::string> words;
  for (const QString& word : typed.simplified().split(u' ', Qt::SkipEmptyParts))
    words.push_back(searchable(word).toStdString());
  return words;
}

bool containsAll(std::string_view text, const std::vector<std::string>& words) {
  return std::all_of(words.begin(), words.end(),
                     [text](const std::string& word) { return text.find(word) != std::string_view::npos; });
}

}  // namespace

void TextSearch::reserve(std::size_t texts) {
  ends_.reserve(texts);
  block_.reserve(texts * usualTextSize);
}

void TextSearch::addField(QStringView field) {
  if (field.isEmpty()) return;
  // Fast path: most fields are ASCII and don't need Unicode case folding.
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
  const std::vector<std::string> words = searchableWords(typed);
  const std::string_view block = block_;
  std::vector<int> found;
  found.reserve(among.size());
  std::copy_if(among.begin(), among.end(), std::back_inserter(found), [&](int number) {
    const auto text = static_cast<std::size_t>(number);
    const std::size_t begin = text == 0 ? 0 : ends_[text - 1];
    return containsAll(block.substr(begin, ends_[text] - begin), words);
  });
  return found;
}

}  // namespace parlexo
