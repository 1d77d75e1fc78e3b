// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/message_texts.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include "base/product.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

/// The untranslated text.
const char* sourceText(TextId id) {
  switch (id) {
    case TextId::AboutMenuEntry:
      return QT_TRANSLATE_NOOP("MessageTexts", "&About Parlexo Client...");
    case TextId::RecipientsBlank:
      return QT_TRANSLATE_NOOP("MessageTexts",
                               "The contacts list is blank. Select contacts to send message to.");
    case TextId::GatewayUnreachable:
      return QT_TRANSLATE_NOOP(
          "MessageTexts",
          "Could not connect to the Parlexo gateway server.\r\n\r\nPlease make sure you have internet "
          "connectivity, your firewall allows gateway connection or try again later.");
    case TextId::SessionExpired:
      return QT_TRANSLATE_NOOP("MessageTexts", "Your Session has expired. Please log back in");
    case TextId::FaxTooLarge:
      return QT_TRANSLATE_NOOP("MessageTexts", "Fax files must be 2MB or less");
    case TextId::FaxMemory:
      return QT_TRANSLATE_NOOP("MessageTexts", "Error sending fax file. Insufficient memory");
    case TextId::FaxOpen:
      return QT_TRANSLATE_NOOP("MessageTexts", "Error opening Fax file:%s");
    case TextId::FaxTransport:
      return QT_TRANSLATE_NOOP("MessageTexts", "Error sending fax file.");
    case TextId::FaxError:
      return QT_TRANSLATE_NOOP("MessageTexts", "An error occured while sending the fax file. Error code: %i");
    case TextId::FaxWarning:
      return QT_TRANSLATE_NOOP(
          "MessageTexts", "Warning - The server was unable to send your fax file to the following numbers");
    case TextId::FaxSuccess:
      return QT_TRANSLATE_NOOP("MessageTexts", "Fax message successfully delivered to the server.");
    case TextId::MmsDescriptionTooLong:
      return QT_TRANSLATE_NOOP("MessageTexts", "Description must be 10Kb or less");
    case TextId::MmsTooLarge:
      return QT_TRANSLATE_NOOP("MessageTexts", "Error media files must be 50Kb or less");
    case TextId::MmsMemory:
      return QT_TRANSLATE_NOOP("MessageTexts", "Error sending media file. Insufficient memory");
    case TextId::MmsOpen:
      return QT_TRANSLATE_NOOP("MessageTexts", "Error opening media file :%s");
    case TextId::MmsError:
      return QT_TRANSLATE_NOOP("MessageTexts",
                               "An error occured while sending the media file. Error code: %i");
    case TextId::MmsWarning:
      return QT_TRANSLATE_NOOP(
          "MessageTexts", "Warning - The server was unable to send your media file to the following numbers");
    case TextId::MmsSuccess:
      return QT_TRANSLATE_NOOP("MessageTexts", "Media message successfully delivered to the server.");
    case TextId::SmsError:
      return QT_TRANSLATE_NOOP("MessageTexts",
                               "An error occured while sending your message.\r\nError code: %i");
    case TextId::SmsWarning:
      return QT_TRANSLATE_NOOP(
          "MessageTexts", "Warning - The server was unable to send your message to the following numbers");
    case TextId::SmsSuccess:
      return QT_TRANSLATE_NOOP("MessageTexts", "SMS message successfully delivered to the server.");
    case TextId::WapTooLarge:
      return QT_TRANSLATE_NOOP("MessageTexts", "WAP files must be 50Kb or less");
    case TextId::WapMemory:
      return QT_TRANSLATE_NOOP("MessageTexts", "Error sending WAP file. Insufficient memory");
    case TextId::WapOpen:
      return QT_TRANSLATE_NOOP("MessageTexts", "Error opening WAP file :%s");
    case TextId::WapError:
      return QT_TRANSLATE_NOOP("MessageTexts", "An error occured while sending the WAP file. Error code: %i");
    case TextId::WapWarning:
      return QT_TRANSLATE_NOOP(
          "MessageTexts", "Warning - The server was unable to send your WAP file to the following numbers");
    case TextId::WapSuccess:
      return QT_TRANSLATE_NOOP("MessageTexts", "WAP message successfully delivered to the server.");
    case TextId::ModulePathFailed:
      return QT_TRANSLATE_NOOP("MessageTexts", "GetModuleFileName failed (%i)\r\n");
    case TextId::BalanceLow:
      return QT_TRANSLATE_NOOP(
          "MessageTexts",
          "Your account balance is less than $2.00.\r\nPlease go to %1 and top up your account balance.");
    case TextId::BalanceZero:
      return QT_TRANSLATE_NOOP(
          "MessageTexts",
          "Your account balance is zero.\r\nPlease go to %1, sign-in and add credit to your "
          "account.\r\n\r\nIf you wish to trial our services then this may only be done via the website "
          "portal. In the web portal click the 'Free Trial' button. The Parlexo Client software requires "
          "credit to send messages.");
    case TextId::LocatorUnreachable:
      return QT_TRANSLATE_NOOP(
          "MessageTexts",
          "Could not connect to the Parlexo internet to determine the location of the gateway "
          "server.\r\n\r\nPlease make sure you have internet connectivity, your firewall allows gateway "
          "connection or try again later.");
    case TextId::StatusQueryError:
      return QT_TRANSLATE_NOOP("MessageTexts",
                               "An error occured while getting the status of the message.\r\nError code: %i");
    case TextId::StatusFileMissing:
      return QT_TRANSLATE_NOOP("MessageTexts", "Could not locate the status file.");
    case TextId::SettingsSection:
      return "Settings";
    case TextId::ButtonOk:
      return QT_TRANSLATE_NOOP("MessageTexts", "&OK");
    case TextId::ButtonYes:
      return QT_TRANSLATE_NOOP("MessageTexts", "&Yes");
    case TextId::ButtonNo:
      return QT_TRANSLATE_NOOP("MessageTexts", "&No");
    case TextId::ButtonCancel:
      return QT_TRANSLATE_NOOP("MessageTexts", "&Cancel");
    case TextId::DontShowAgainValue:
      return "MessageDontShowAgain%i";
    case TextId::TemplatesTip:
      return QT_TRANSLATE_NOOP(
          "MessageTexts",
          "You can save templates for frequently used messages. Be sure to leave contacts empty if you "
          "do not wish to save your contacts.");
  }
  Q_UNREACHABLE();
}

bool isSettingsKey(TextId id) {
  return id == TextId::SettingsSection || id == TextId::DontShowAgainValue;
}

bool namesWebSite(TextId id) {
  return id == TextId::BalanceLow || id == TextId::BalanceZero;
}

}  // namespace

QString text(TextId id) {
  if (isSettingsKey(id)) return QLatin1String(sourceText(id));
  const QString shown = QCoreApplication::translate("MessageTexts", sourceText(id));
  return namesWebSite(id) ? shown.arg(webPage(QString())) : shown;
}

QString withText(TextId id, const QString& value) {
  const QString placeholder = u"%s"_s;
  QString result = text(id);
  const auto position = result.indexOf(placeholder);
  return position < 0 ? result : result.replace(position, placeholder.size(), value);
}

QString withNumber(const QString& text, int number) {
  static const QRegularExpression placeholder(u"%[id]"_s);
  QString result = text;
  const auto match = placeholder.match(text);
  if (match.hasMatch())
    result.replace(match.capturedStart(), match.capturedLength(), QString::number(number));
  return result;
}

}  // namespace parlexo
