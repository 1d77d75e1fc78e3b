// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo::messaging_texts {

/// The messages of the messaging pages that have no number.

inline QString noSmsText() {
  return QStringLiteral("No SMS message has been provided. Enter a SMS message.");
}
inline QString unicodeTooLong() {
  return QStringLiteral("Unicode text is too long for message, we can not send this!");
}
inline QString tooMuchText() {
  return QStringLiteral("You have entered too much text for messaging. Clearing text to send");
}
inline QString scheduleRefused() {
  return QStringLiteral(
      "Error setting schedule date. Perhaps you have scheduled the message too far into the future? Error: "
      "%i");
}
inline QString senderIdRefused() {
  return QStringLiteral(
      "Error setting your Sender Id. Are you sure you have set a valid Sender Id and your account is enabled "
      "to set Any Sender ID? Error: %i");
}
inline QString badNumbersRemoved() {
  return QStringLiteral("The following Contacts had bad phone numbers and were removed:");
}
inline QString nothingHighlighted() {
  return QStringLiteral("Can't delete the selected contacts as you have not selected one or more contacts");
}
inline QString confirmRemoval() {
  return QStringLiteral("Are you sure you want to delete the selected contacts?");
}
inline QString templateSaved() {
  return QStringLiteral("Your template was saved.");
}
inline QString templateNotSaved() {
  return QStringLiteral("Could not save your template!!");
}
inline QString templateNotLoaded() {
  return QStringLiteral("Something wrong with the Template as it could not be loaded");
}
inline QString templateNotDeleted() {
  return QStringLiteral("Could not delete your template!!");
}
inline QString noTemplateToLoad() {
  return QStringLiteral("Please select a Template to load");
}
inline QString noTemplateToDelete() {
  return QStringLiteral("Please select a Template to delete");
}
inline QString confirmTemplateLoading(const QString& name) {
  return QStringLiteral("Are you sure you want to load the Template called: \"") + name +
         QStringLiteral("\"?");
}
inline QString confirmTemplateDeletion(const QString& name) {
  return QStringLiteral("Are you sure you want to delete the Template called: \"") + name +
         QStringLiteral("\"?");
}

}  // namespace parlexo::messaging_texts
