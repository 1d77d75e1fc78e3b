// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/core/contact_export.h"

#include <QCoreApplication>
#include <QLatin1String>
#include <QStringList>

#include "addressbook/core/contact_selection.h"
#include "addressbook/core/import_columns.h"
#include "contacts/address_book.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr ImportField exportedFields[] = {
    ImportField::Name,        ImportField::Phone,         ImportField::Fax,    ImportField::Email,
    ImportField::SupportsSms, ImportField::SupportsMedia, ImportField::Extra1, ImportField::Extra2,
    ImportField::Extra3,      ImportField::Extra4,        ImportField::Extra5, ImportField::Extra6};

QStringList exportHeadings() {
  QStringList headings;
  for (const ImportField field : exportedFields) headings.append(fieldHeading(field));
  return headings;
}

QStringList exportCells(const ContactRecord& contact) {
  QStringList cells{contact.name,  contact.phone,       contact.fax,
                    contact.email, contact.supportsSms, contact.supportsMedia};
  for (const QString& extra : contact.extra) cells.append(extra);
  return cells;
}

}  // namespace

CsvWriter contactsAsCsv(const ContactSelection::Contacts& contacts) {
  CsvWriter csv(CsvCells::AsTheyAre);
  csv.addRow(exportHeadings());
  for (const ContactRecord* contact : contacts) csv.addRow(exportCells(*contact));
  return csv;
}

QString exportName(const ContactFolder& folder) {
  switch (folder.kind) {
    case ContactFolder::Kind::Root:
    case ContactFolder::Kind::AllContacts:
      return QLatin1String(allContactsName);
    case ContactFolder::Kind::Letter:
      return QCoreApplication::translate("ContactExport", "Contacts %1").arg(folder.name);
    case ContactFolder::Kind::Other:
      return QCoreApplication::translate("ContactExport", "Contacts Other");
    case ContactFolder::Kind::Group:
      break;
  }
  QString name = shownName(folder.name);
  for (QChar& character : name)
    if (u"\\/:*?\"<>|"_s.contains(character)) character = u'_';
  return name;
}

}  // namespace parlexo
