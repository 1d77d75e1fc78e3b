// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/recipients.h"

#include <algorithm>

#include <QHash>
#include <QSet>

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

const QString& selectedNumber(const ContactRecord& contact, RecipientNumber which) {
  switch (which) {
    case RecipientNumber::Phone:
      return contact.phone;
    case RecipientNumber::Fax:
      return contact.fax;
  }
  Q_UNREACHABLE();
}

Recipient parseEntry(const QString& text) {
  const qsizetype bracket = text.lastIndexOf(u" [+"_s);
  if (bracket < 0 || !text.endsWith(QChar(u']'))) return {text, {}};
  return {text.left(bracket), text.mid(bracket + 2, text.size() - bracket - 3)};
}

template <class List>
void eraseMarked(List& list, const std::vector<bool>& marked) {
  std::size_t index = 0;
  list.erase(std::remove_if(list.begin(), list.end(), [&](const auto&) { return marked[index++]; }),
             list.end());
}

// Removes the first occurrences of each number, as many as `unwanted` says.
void eraseFirst(QStringList& numbers, QHash<QString, int> unwanted) {
  numbers.removeIf([&](const QString& number) {
    const auto count = unwanted.find(number);
    if (count == unwanted.end() || *count == 0) return false;
    --*count;
    return true;
  });
}

}  // namespace

QStringList Recipients::select(std::span<const ContactRecord* const> contacts, RecipientNumber which) {
  entries_.clear();
  numbers_.clear();
  QStringList rejected;
  for (const ContactRecord* contact : contacts) {
    const QString& number = selectedNumber(*contact, which);
    if (number.startsWith(QChar(u'+'))) {
      entries_.push_back({contact->name, number});
      numbers_.append(number);
    } else {
      rejected.append(contact->name);
    }
  }
  return rejected;
}

void Recipients::remove(const std::vector<int>& indexes) {
  std::vector<bool> marked(entries_.size(), false);
  QHash<QString, int> unwanted;
  for (const int index : indexes) {
    if (index < 0 || static_cast<std::size_t>(index) >= marked.size() || marked[index]) continue;
    marked[index] = true;
    ++unwanted[entries_[index].number];
  }
  if (listsAgree())
    eraseMarked(numbers_, marked);
  else
    eraseFirst(numbers_, std::move(unwanted));
  eraseMarked(entries_, marked);
}

int Recipients::repeatedNumberCount() const {
  QSet<QString> seen;
  QSet<QString> repeated;
  for (const QString& number : numbers_) (seen.contains(number) ? repeated : seen).insert(number);
  return static_cast<int>(repeated.size());
}

void Recipients::removeRepeats() {
  if (!haveEqualCounts()) return;
  QSet<QString> seen;
  std::vector<bool> isRepeat;
  isRepeat.reserve(entries_.size());
  for (const QString& number : numbers_) {
    isRepeat.push_back(seen.contains(number));
    seen.insert(number);
  }
  eraseMarked(numbers_, isRepeat);
  eraseMarked(entries_, isRepeat);
}

void Recipients::setEntries(const QString& displayList) {
  entries_.clear();
  qsizetype begin = 0;
  while (begin < displayList.size()) {
    const qsizetype number = displayList.indexOf(u" [+"_s, begin);
    const qsizetype bracket = number < 0 ? -1 : displayList.indexOf(u"],"_s, number);
    const qsizetype end = bracket < 0 ? displayList.size() : bracket + 1;
    entries_.push_back(parseEntry(displayList.mid(begin, end - begin)));
    begin = end + 1;
  }
}

QString Recipients::displayList() const {
  QStringList texts;
  texts.reserve(static_cast<qsizetype>(entries_.size()));
  for (const Recipient& entry : entries_) texts.append(entry.text());
  return texts.join(QChar(u','));
}

bool Recipients::haveEqualCounts() const {
  return static_cast<qsizetype>(entries_.size()) == numbers_.size();
}

bool Recipients::listsAgree() const {
  return std::equal(entries_.begin(), entries_.end(), numbers_.begin(), numbers_.end(),
                    [](const Recipient& entry, const QString& number) { return entry.number == number; });
}

}  // namespace parlexo
