// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/status_log.h"

#include <algorithm>
#include <utility>

namespace parlexo {
namespace {

bool isTabOrLineBreak(QChar c) {
  return c == u'\t' || c == u'\n' || c == u'\r';
}

bool isAlwaysRemoved(QChar c) {
  return c < u' ' || (c >= QChar(0x7F) && c < QChar(0xA0)) || c >= QChar(0xFFFE);
}

bool isAllowed(QChar c) {
  return !isAlwaysRemoved(c) && !c.isSurrogate();
}

StatusEntry cleaned(StatusEntry entry) {
  for (QString StatusEntry::*field : {&StatusEntry::phone, &StatusEntry::receipt, &StatusEntry::status,
                                      &StatusEntry::type, &StatusEntry::date})
    entry.*field = withoutControlCharacters(entry.*field);
  return entry;
}

StatusLog::Entries byReceipt(std::vector<StatusEntry> list) {
  StatusLog::Entries entries;
  entries.reserve(list.size());
  for (StatusEntry& entry : list) {
    StatusEntry clean = cleaned(std::move(entry));
    const QString receipt = clean.receipt;
    entries.insert_or_assign(receipt, std::move(clean));
  }
  return entries;
}

}  // namespace

QString withoutControlCharacters(const QString& text) {
  if (std::all_of(text.begin(), text.end(), isAllowed)) return text;
  QString clean;
  clean.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      clean += c;
      clean += text[++i];
    } else if (isTabOrLineBreak(c)) {
      clean += u' ';
    } else if (isAllowed(c)) {
      clean += c;
    }
  }
  return clean;
}

void StatusLog::add(StatusEntry entry) {
  StatusEntry clean = cleaned(std::move(entry));
  const QString receipt = clean.receipt;
  entries_.insert_or_assign(receipt, std::move(clean));
  ++revision_;
}

const StatusEntry* StatusLog::setStatus(const QString& receipt, const QString& status) {
  const auto entry = entries_.find(receipt);
  if (entry == entries_.end()) return nullptr;
  entry->second.status = withoutControlCharacters(status);
  ++revision_;
  return &entry->second;
}

void StatusLog::load(std::vector<StatusEntry> fileEntries) {
  entries_ = byReceipt(std::move(fileEntries));
  inFile_ = entries_;
  savedRevision_ = ++revision_;
}

void StatusLog::merge(std::vector<StatusEntry> fileEntries, const IsDeleted& isDeleted) {
  Entries inFile = byReceipt(std::move(fileEntries));
  bool isChanged =
      std::erase_if(entries_, [&](const auto& own) {
        return inFile_.contains(own.first) && !inFile.contains(own.first) && isDeleted(own.second);
      }) > 0;
  for (const auto& [receipt, entry] : inFile) {
    const auto own = entries_.find(receipt);
    const bool useFile = own == entries_.end() ? !inFile_.contains(receipt) : !isChangedHere(own->second);
    if (!useFile || (own != entries_.end() && own->second == entry)) continue;
    entries_.insert_or_assign(receipt, entry);
    isChanged = true;
  }
  inFile_ = std::move(inFile);
  if (isChanged) ++revision_;
}

void StatusLog::markSaved(std::vector<StatusEntry> written) {
  inFile_ = byReceipt(std::move(written));
  savedRevision_ = revision_;
}

bool StatusLog::isChangedHere(const StatusEntry& entry) const {
  const auto saved = inFile_.find(entry.receipt);
  return saved == inFile_.end() || saved->second != entry;
}

}  // namespace parlexo
