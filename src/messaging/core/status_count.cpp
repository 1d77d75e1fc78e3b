#include "messaging/core/status_count.h"

#include "messaging/core/status_file.h"

namespace parlexo {

QString statusCountText(int shown, std::size_t all) {
  QString count = shown == 1 ? QStringLiteral("1 message of this type")
                             : QStringLiteral("%1 messages of this type").arg(shown);
  count += QStringLiteral(", %1 in all.").arg(all);
  if (all > StatusFile::elementsRead)
    count +=
        QStringLiteral(" Only the newest %1 are kept when the program ends.").arg(StatusFile::elementsRead);
  return count;
}

}  // namespace parlexo
