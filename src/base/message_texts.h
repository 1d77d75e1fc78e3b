// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// The numbered texts that several parts of the program share. The number is also part of the settings key
/// that stores "don't show again".
enum class TextId : int {
  AboutMenuEntry = 101,
  RecipientsBlank = 102,
  GatewayUnreachable = 104,
  SessionExpired = 105,
  FaxTooLarge = 118,
  FaxMemory = 119,
  FaxOpen = 120,
  FaxTransport = 121,
  FaxError = 122,
  FaxWarning = 123,
  FaxSuccess = 124,
  MmsDescriptionTooLong = 125,
  MmsTooLarge = 126,
  MmsMemory = 127,
  MmsOpen = 128,
  MmsError = 130,
  MmsWarning = 131,
  MmsSuccess = 132,
  SmsError = 133,
  SmsWarning = 134,
  SmsSuccess = 135,
  WapTooLarge = 136,
  WapMemory = 137,
  WapOpen = 138,
  WapError = 139,
  WapWarning = 140,
  WapSuccess = 141,
  ModulePathFailed = 142,
  BalanceLow = 146,
  BalanceZero = 147,
  LocatorUnreachable = 159,
  StatusQueryError = 160,
  StatusFileMissing = 163,
  SettingsSection = 175,
  ButtonOk = 246,
  ButtonYes = 247,
  ButtonNo = 248,
  ButtonCancel = 249,
  DontShowAgainValue = 394,
  TemplatesTip = 395,
};

/// The text with this number, translated. Placeholders for an error code ("%i") or a file name ("%s") are
/// left in; see withNumber() and withText(). SettingsSection and DontShowAgainValue are never translated.
[[nodiscard]] QString text(TextId id);

/// Replaces the first "%i" or "%d" in `text` by `number`. Returns `text` unchanged if there is none.
[[nodiscard]] QString withNumber(const QString& text, int number);

/// The same for a numbered text.
[[nodiscard]] inline QString withNumber(TextId id, int number) {
  return withNumber(text(id), number);
}

/// The text with this number, with its first "%s" replaced by `value`.
[[nodiscard]] QString withText(TextId id, const QString& value);

}  // namespace parlexo
