// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <unordered_map>

#include <QByteArray>
#include <QHash>  // std::hash of QString
#include <QString>
#include <sqlite3.h>

#include "contacts/contact_record.h"

namespace parlexo {

/// An address book in an SQLite database, for comparison: the same contacts and groups, the same maps in
/// memory, and transactions as durable as the writes of the contact store (WAL, synchronous=FULL).
class SqliteBook {
 public:
  struct Contents {
    std::unordered_map<QString, ContactRecord> contacts;
    std::unordered_map<QString, std::unordered_map<QString, const ContactRecord*>> groups;
  };

  /// Opens the database, which is created if missing.
  explicit SqliteBook(const QByteArray& path);

  /// Fills an empty database with the sample contacts and groups, in one transaction.
  void fill(int contactTotal, int groupCount);
  [[nodiscard]] Contents load() const;
  /// Adds or changes one contact in a separate transaction. Returns false on error.
  [[nodiscard]] bool save(const ContactRecord& contact) const;

 private:
  using Database = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;
  using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

  [[nodiscard]] bool run(const char* sql) const;
  [[nodiscard]] Statement prepare(const char* sql) const;

  Database database_;
  Statement saving_;
};

}  // namespace parlexo
