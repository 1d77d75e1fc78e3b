// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QString>
#include <QStringList>

#include "contacts/contact_record.h"

namespace parlexo {

// Generated address books of any size for the demo, tests and benchmarks. The same counts always produce the
// same contacts. The phone numbers are not assigned to any subscriber. A few end in 99, which the gateway
// simulator treats as unreachable.

struct SampleGroup {
  QString name;
  QStringList memberNames;
};

/// Returns `count` contacts with unique names. About one in ten only has a fax number.
[[nodiscard]] std::vector<ContactRecord> sampleContacts(int count);

/// Returns the personal group with the first few of `contacts`, and `count` further groups: the first one
/// with every second contact, the others with up to 200 contacts each.
[[nodiscard]] std::vector<SampleGroup> sampleGroups(int count, const std::vector<ContactRecord>& contacts);

/// Writes an address book to `folder`, which is created if missing. Returns an error message if a file could
/// not be written or the folder already contains contacts or groups, which are preserved. Returns an empty
/// string on success.
[[nodiscard]] QString writeSampleFolder(const QString& folder, int contactCount, int groupCount);

}  // namespace parlexo
