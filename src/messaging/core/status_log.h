#pragma once

#include <unordered_map>

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

/// The program's record of what was sent, one entry per receipt. Owned by the application; used by the
/// interface thread alone.
class StatusLog {
 public:
  /// Keyed by receipt, compared byte by byte; in no order of time.
  using Entries = std::unordered_map<QString, StatusEntry>;

  /// Adds an entry. One that has the same receipt is replaced, so that several failed recipients whose
  /// receipt reads "FAIL" leave the last of them.
  void add(StatusEntry entry);

  /// Gives the entry of `receipt` a new status. Returns false when there is none.
  bool setStatus(const QString& receipt, const QString& status);

  void clear();

  [[nodiscard]] const Entries& entries() const { return entries_; }

  /// True when something has changed since markSaved().
  [[nodiscard]] bool isModified() const { return savedRevision_ != revision_; }
  void markSaved() { savedRevision_ = revision_; }

  /// Grows with every change, so that a view knows whether it is up to date.
  [[nodiscard]] quint64 revision() const { return revision_; }

 private:
  Entries entries_;
  quint64 revision_ = 0;
  quint64 savedRevision_ = 0;
};

}  // namespace parlexo
