// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/sqlite_book.h"

#include <cstdlib>
#include <utility>
#include <vector>

#include "contacts/samples/sample_contacts.h"

namespace parlexo {

namespace {

constexpr char tables[] =
    "pragma journal_mode = wal; pragma synchronous = full;"
    "create table if not exists contact"
    "(name text primary key, phone, sms, media, fax, email, e1, e2, e3, e4, e5, e6);"
    "create table if not exists member(grp, name, primary key(grp, name)) without rowid";
constexpr char contactRow[] = "insert or replace into contact values(?,?,?,?,?,?,?,?,?,?,?,?)";
constexpr char memberRow[] = "insert into member values(?,?)";

sqlite3* openDatabase(const QByteArray& path) {
  sqlite3* opened = nullptr;
  sqlite3_open(path.constData(), &opened);
  return opened;
}

bool insertRow(sqlite3_stmt* statement, const std::vector<QString>& values) {
  int column = 0;
  for (const QString& value : values) {
    const QByteArray bytes = value.toUtf8();
    sqlite3_bind_text(statement, ++column, bytes.constData(), static_cast<int>(bytes.size()),
                      SQLITE_TRANSIENT);
  }
  const bool done = sqlite3_step(statement) == SQLITE_DONE;
  return sqlite3_reset(statement) == SQLITE_OK && done;
}

bool insertContact(sqlite3_stmt* statement, const ContactRecord& c) {
  return insertRow(statement, {c.name, c.phone, c.supportsSms, c.supportsMedia, c.fax, c.email, c.extra[0],
                               c.extra[1], c.extra[2], c.extra[3], c.extra[4], c.extra[5]});
}

QString textAt(sqlite3_stmt* row, int column) {
  return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(row, column)),
                           sqlite3_column_bytes(row, column));
}

ContactRecord contactAt(sqlite3_stmt* row) {
  ContactRecord contact{
      textAt(row, 0), textAt(row, 1), textAt(row, 2), textAt(row, 3), textAt(row, 4), textAt(row, 5), {}};
  for (int field = 0; field < ContactRecord::extraCount; ++field)
    contact.extra[static_cast<std::size_t>(field)] = textAt(row, 6 + field);
  return contact;
}

}  // namespace

SqliteBook::SqliteBook(const QByteArray& path)
    : database_(openDatabase(path), &sqlite3_close), saving_(nullptr, &sqlite3_finalize) {
  // A comparison with a failing database would be meaningless.
  if (!run(tables)) std::abort();
  saving_ = prepare(contactRow);
}

void SqliteBook::fill(int contactTotal, int groupCount) {
  const auto contacts = sampleContacts(contactTotal);
  const Statement members = prepare(memberRow);
  bool done = run("begin");
  for (const ContactRecord& contact : contacts) done = insertContact(saving_.get(), contact) && done;
  for (const SampleGroup& group : sampleGroups(groupCount, contacts)) {
    for (const QString& member : group.memberNames)
      done = insertRow(members.get(), {group.name, member}) && done;
  }
  if (!run("commit") || !done) std::abort();
}

SqliteBook::Contents SqliteBook::load() const {
  Contents book;
  const Statement contactRows = prepare("select * from contact");
  while (sqlite3_step(contactRows.get()) == SQLITE_ROW) {
    ContactRecord contact = contactAt(contactRows.get());
    book.contacts.insert_or_assign(contact.name, std::move(contact));
  }
  const Statement memberRows = prepare("select grp, name from member");
  while (sqlite3_step(memberRows.get()) == SQLITE_ROW) {
    const auto found = book.contacts.find(textAt(memberRows.get(), 1));
    if (found != book.contacts.end()) book.groups[textAt(memberRows.get(), 0)][found->first] = &found->second;
  }
  return book;
}

bool SqliteBook::save(const ContactRecord& contact) const {
  return insertContact(saving_.get(), contact);
}

bool SqliteBook::run(const char* sql) const {
  return sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

SqliteBook::Statement SqliteBook::prepare(const char* sql) const {
  sqlite3_stmt* prepared = nullptr;
  sqlite3_prepare_v2(database_.get(), sql, -1, &prepared, nullptr);
  return {prepared, &sqlite3_finalize};
}

}  // namespace parlexo
