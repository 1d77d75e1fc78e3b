// SPDX-License-Identifier: GPL-3.0-or-later
#include "messaging/screens/page_traits.h"

#include <algorithm>
#include <array>

#include <QCoreApplication>

namespace parlexo {

namespace {

// The default maximum of a multi-line edit on Windows. More than can be sent: the send reports a description
// that is too long, and the user can shorten it.
constexpr int maxTypedDescription = 32'767;
constexpr int maxWapNote = 120;

constexpr std::array pageTable = {
    PageTraits{.type = MessageType::Sms, .selectionMode = SelectionMode::Sms},
    PageTraits{.type = MessageType::Mms,
               .selectionMode = SelectionMode::Media,
               .objectName = "mmsPage",
               .fileLabel = QT_TRANSLATE_NOOP("parlexo::FilePage", "Media &file:"),
               .noteLabel = QT_TRANSLATE_NOOP("parlexo::FilePage", "&Description:"),
               .noteLimit = maxTypedDescription,
               .previewsPicture = true},
    PageTraits{.type = MessageType::Fax,
               .selectionMode = SelectionMode::Fax,
               .number = RecipientNumber::Fax,
               .objectName = "faxPage",
               .fileLabel = QT_TRANSLATE_NOOP("parlexo::FilePage", "Fax &file:"),
               .countsPages = true},
    PageTraits{.type = MessageType::Wap,
               .selectionMode = SelectionMode::Media,
               .objectName = "wapPage",
               .fileLabel = QT_TRANSLATE_NOOP("parlexo::FilePage", "WAP &file:"),
               .noteLabel = QT_TRANSLATE_NOOP("parlexo::FilePage", "Sender &Note:"),
               .noteLimit = maxWapNote,
               .countsNote = true},
};

}  // namespace

const PageTraits& pageTraits(MessageType type) {
  const auto* row = std::find_if(pageTable.begin(), pageTable.end(),
                                 [type](const PageTraits& traits) { return traits.type == type; });
  Q_ASSERT(row != pageTable.end());
  return *row;
}

}  // namespace parlexo
