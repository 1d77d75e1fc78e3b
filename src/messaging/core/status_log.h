// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <unordered_map>
#include <vector>

#include <QHash>
#include <QString>

namespace parlexo {

/// One message to one recipient, as logged after the gateway has accepted it.
struct StatusEntry {
  QString phone;
  QString receipt;  ///< the gateway's receipt; the key of the log
  QString status;
  QString type;  ///< toWord() of the message type, or any other word from the file
  QString date;  ///< local time of sending, "dd/MM/yyyy HH:mm:ss"

  bool operator==(const StatusEntry&) const = default;
};

/// `text` as a single line of characters that XML 1.0 allows: tabs and line breaks become spaces; other
/// control characters (C0, DEL and C1), unpaired surrogates and the noncharacters U+FFFE and U+FFFF are
/// removed.
[[nodiscard]] QString withoutControlCharacters(const QString& text);

/// The log of sent messages, one entry per receipt. Not thread-safe: used by the interface thread only.
/// Control characters are removed from all fields of added entries.
///
/// The log also stores the entries that its file contained when it was last read or written. merge() compares
/// with these to distinguish changes made here from those of another program.
class StatusLog {
 public:
  /// Keyed by receipt, in no particular order.
  using Entries = std::unordered_map<QString, StatusEntry>;

  /// Returns true if another program has deleted the entry, which the file contained before and does not now.
  using IsDeleted = std::function<bool(const StatusEntry&)>;

  /// Adds an entry, replacing one with the same receipt. Of several failed recipients with the receipt "FAIL"
  /// only the last one remains.
  void add(StatusEntry entry);

  /// Sets the status of an entry. Returns the entry, valid until the log changes again, or null if there is
  /// none with this receipt.
  const StatusEntry* setStatus(const QString& receipt, const QString& status);

  /// Replaces the whole log by the entries of its file; the last one with a given receipt counts. The log is
  /// unmodified then.
  void load(std::vector<StatusEntry> fileEntries);

  /// Applies the changes of other programs since the file was last read or written here: adds new entries and
  /// removes those for which `isDeleted` returns true. If an entry exists in both, the version changed here
  /// wins, otherwise the file's.
  void merge(std::vector<StatusEntry> fileEntries, const IsDeleted& isDeleted);

  [[nodiscard]] const Entries& entries() const { return entries_; }

  /// Returns true if the log has changed since load() or markSaved().
  [[nodiscard]] bool isModified() const { return savedRevision_ != revision_; }
  /// Records that the file now contains exactly `written`, possibly fewer entries than the log.
  void markSaved(std::vector<StatusEntry> written);

  /// Increases with every change, so views can detect that they are out of date.
  [[nodiscard]] quint64 revision() const { return revision_; }

 private:
  [[nodiscard]] bool isChangedHere(const StatusEntry& entry) const;

  Entries entries_;
  Entries inFile_;  ///< the entries of the file when last read or written
  quint64 revision_ = 0;
  quint64 savedRevision_ = 0;
};

}  // namespace parlexo
