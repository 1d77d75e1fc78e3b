// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace parlexo {

/// The numbered texts that several places of the program show. The number also names the registry value
/// under which "don't show again" is remembered.
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

/// The text with the given number, as the user sees it. Texts that carry a code hold "%i" in its place.
[[nodiscard]] QString text(TextId id);

/// `text` with its first "%i" or "%d" replaced by `number`.
[[nodiscard]] QString withNumber(const QString& text, int number);

/// Likewise for a numbered text.
[[nodiscard]] inline QString withNumber(TextId id, int number) {
  return withNumber(text(id), number);
}

/// The text with the given number, its first "%s" replaced by `value`.
[[nodiscard]] QString withText(TextId id, const QString& value);

}  // namespace parlexo
