// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <unordered_map>
#include <vector>

#include <QHash>
#include <QString>

namespace parlexo {

/// One message handed to the gateway for one recipient.
struct StatusEntry {
  QString phone;
  QString receipt;  ///< the gateway's receipt; the key of the log
  QString status;
  QString type;  ///< "SMS", "MMS", "Fax" or "WAP"
  QString date;  ///< local time of sending, "dd/MM/yyyy HH:mm:ss"

  bool operator==(const StatusEntry&) const = default;
};

/// `text` on one line and without characters that XML 1.0 forbids: tabs and line breaks become blanks; other
/// control characters (C0, DEL and C1), unpaired surrogates and the noncharacters U+FFFE and U+FFFF are
/// removed.
[[nodiscard]] QString withoutControlCharacters(const QString& text);

/// The program's record of what was sent, one entry per receipt. Owned by the application; used by the
/// interface thread alone. No field of an entry holds control characters: they are removed on the way in.
///
/// The log also remembers the entries that its file held when it was last read or written. Compared with
/// these, merge() can distinguish its own changes from those of another program that uses the same file.
class StatusLog {
 public:
  /// Keyed by receipt, compared byte by byte; in no order of time.
  using Entries = std::unordered_map<QString, StatusEntry>;

  /// Decides about an entry that the file held before and no longer holds: true when another program has
  /// deleted it.
  using IsDeleted = std::function<bool(const StatusEntry&)>;

  /// Adds an entry. One that has the same receipt is replaced, so that several failed recipients whose
  /// receipt reads "FAIL" leave the last of them.
  void add(StatusEntry entry);

  /// Sets the status of the entry of `receipt`. Returns the changed entry, valid until the log changes again,
  /// or nullptr when there is none.
  const StatusEntry* setStatus(const QString& receipt, const QString& status);

  /// Replaces the whole log by the entries read from its file; of two with the same receipt the later counts.
  /// Nothing is modified afterwards.
  void load(std::vector<StatusEntry> fileEntries);

  /// Takes in what other programs have changed in the file since it was last read or written here:
  /// entries that are new in the file are added; entries that `isDeleted` says were deleted are removed; of
  /// an entry in both, the version changed here wins, otherwise the file's.
  void merge(std::vector<StatusEntry> fileEntries, const IsDeleted& isDeleted);

  [[nodiscard]] const Entries& entries() const { return entries_; }

  /// True when something has changed since load() or markSaved().
  [[nodiscard]] bool isModified() const { return savedRevision_ != revision_; }
  /// The file now holds exactly `written`, which may be fewer entries than the log has.
  void markSaved(std::vector<StatusEntry> written);

  /// Grows with every change, so that a view knows whether it is up to date.
  [[nodiscard]] quint64 revision() const { return revision_; }

 private:
  [[nodiscard]] bool isChangedHere(const StatusEntry& entry) const;

  Entries entries_;
  Entries inFile_;  ///< what the file held when last read or written
  quint64 revision_ = 0;
  quint64 savedRevision_ = 0;
};

}  // namespace parlexo
