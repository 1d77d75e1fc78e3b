// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/core/contact_selection.h"
#include "base/message_type.h"
#include "messaging/core/recipients.h"

namespace parlexo {

/// How the send pages differ. A new page is a new row of the table in page_traits.cpp.
struct PageTraits {
  MessageType type = MessageType::Sms;
  SelectionMode selectionMode = SelectionMode::All;  ///< the contacts that can be selected
  RecipientNumber number = RecipientNumber::Phone;

  // For pages that send a file. The labels are source texts in the context of FilePage.
  const char* objectName = nullptr;
  const char* fileLabel = nullptr;
  const char* noteLabel = nullptr;  ///< null for a page without a note
  int noteLimit = 0;                ///< maximum length of the note in UTF-16 units
  bool countsNote = false;          ///< shows how many characters can still be entered
  bool countsPages = false;
  bool previewsPicture = false;
};

/// The row of `type`, which must be a type that has a page: any but Voice.
[[nodiscard]] const PageTraits& pageTraits(MessageType type);

}  // namespace parlexo
