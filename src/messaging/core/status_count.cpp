// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/core/status_count.h"

#include "messaging/core/status_file.h"

namespace parlexo {

using namespace Qt::StringLiterals;

QString statusCountText(int shown, std::size_t all) {
  QString count = shown == 1 ? u"1 message of this type"_s : u"%1 messages of this type"_s.arg(shown);
  count += u", %1 in all."_s.arg(all);
  if (all > StatusFile::elementsRead)
    count += u" Only the newest %1 are kept when the program ends."_s.arg(StatusFile::elementsRead);
  return count;
}

}  // namespace parlexo
