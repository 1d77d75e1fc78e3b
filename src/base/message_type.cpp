// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/message_type.h"

namespace parlexo {

using namespace Qt::StringLiterals;

QString toWord(MessageType type) {
  switch (type) {
    case MessageType::Sms:
      return u"SMS"_s;
    case MessageType::Mms:
      return u"MMS"_s;
    case MessageType::Fax:
      return u"Fax"_s;
    case MessageType::Wap:
      return u"WAP"_s;
    case MessageType::Voice:
      return u"Voice"_s;
  }
  return {};
}

}  // namespace parlexo
