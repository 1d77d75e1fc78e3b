// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>
#include <QStringList>

#include "contacts/contact_record.h"

namespace parlexo {

/// Made-up address books of any size, for trying the program out, for tests and for measuring. The same
/// counts always give the same contacts. Phone numbers are ones that no subscriber can have; a few end in
/// 99, which the gateway simulator can't reach.

struct SampleGroup {
  QString name;
  QStringList memberNames;
};

/// `count` contacts with names that all differ. About one in ten has a fax number only.
[[nodiscard]] std::vector<ContactRecord> sampleContacts(int count);

/// The personal group with the first few of `contacts`, and `count` further groups: the first of them with
/// every second contact, the others with up to 200 each.
[[nodiscard]] std::vector<SampleGroup> sampleGroups(int count, const std::vector<ContactRecord>& contacts);

/// Writes an address book into `folder`, which is made where missing. Returns an empty text, or what went
/// wrong: a file that could not be written, or contacts or groups that are there already, which are kept.
[[nodiscard]] QString writeSampleFolder(const QString& folder, int contactCount, int groupCount);

}  // namespace parlexo
