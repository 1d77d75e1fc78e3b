// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/message_texts.h"

#include <QRegularExpression>

#include "base/product.h"

namespace parlexo {

QString text(TextId id) {
  using namespace Qt::StringLiterals;
  switch (id) {
    case TextId::AboutMenuEntry:
      return u"&About Parlexo Client..."_s;
    case TextId::RecipientsBlank:
      return u"The contacts list is blank. Select contacts to send message to."_s;
    case TextId::GatewayUnreachable:
      return u"Could not connect to the Parlexo gateway server.\r\n\r\nPlease make sure you have internet "
             "connectivity, your firewall allows gateway connection or try again later."_s;
    case TextId::SessionExpired:
      return u"Your Session has expired. Please log back in"_s;
    case TextId::FaxTooLarge:
      return u"Fax files must be 2MB or less"_s;
    case TextId::FaxMemory:
      return u"Error sending fax file. Insufficient memory"_s;
    case TextId::FaxOpen:
      return u"Error opening Fax file:%s"_s;
    case TextId::FaxTransport:
      return u"Error sending fax file."_s;
    case TextId::FaxError:
      return u"An error occured while sending the fax file. Error code: %i"_s;
    case TextId::FaxWarning:
      return u"Warning - The server was unable to send your fax file to the following numbers"_s;
    case TextId::FaxSuccess:
      return u"Fax message successfully delivered to the server."_s;
    case TextId::MmsDescriptionTooLong:
      return u"Description must be 10Kb or less"_s;
    case TextId::MmsTooLarge:
      return u"Error media files must be 50Kb or less"_s;
    case TextId::MmsMemory:
      return u"Error sending media file. Insufficient memory"_s;
    case TextId::MmsOpen:
      return u"Error opening media file :%s"_s;
    case TextId::MmsError:
      return u"An error occured while sending the media file. Error code: %i"_s;
    case TextId::MmsWarning:
      return u"Warning - The server was unable to send your media file to the following numbers"_s;
    case TextId::MmsSuccess:
      return u"Media message successfully delivered to the server."_s;
    case TextId::SmsError:
      return u"An error occured while sending your message.\r\nError code: %i"_s;
    case TextId::SmsWarning:
      return u"Warning - The server was unable to send your message to the following numbers"_s;
    case TextId::SmsSuccess:
      return u"SMS message successfully delivered to the server."_s;
    case TextId::WapTooLarge:
      return u"WAP files must be 50Kb or less"_s;
    case TextId::WapMemory:
      return u"Error sending WAP file. Insufficient memory"_s;
    case TextId::WapOpen:
      return u"Error opening WAP file :%s"_s;
    case TextId::WapError:
      return u"An error occured while sending the WAP file. Error code: %i"_s;
    case TextId::WapWarning:
      return u"Warning - The server was unable to send your WAP file to the following numbers"_s;
    case TextId::WapSuccess:
      return u"WAP message successfully delivered to the server."_s;
    case TextId::ModulePathFailed:
      return u"GetModuleFileName failed (%i)\r\n"_s;
    case TextId::BalanceLow:
      return u"Your account balance is less than $2.00.\r\nPlease go to %1 and top up your account balance."_s
          .arg(webPage(QString()));
    case TextId::BalanceZero:
      return u"Your account balance is zero.\r\nPlease go to %1, sign-in and add credit to your "
             "account.\r\n\r\nIf you wish to trial our services then this may only be done via the website "
             "portal. In the web portal click the 'Free Trial' button. The Parlexo Client software requires "
             "credit to send messages."_s.arg(webPage(QString()));
    case TextId::LocatorUnreachable:
      return u"Could not connect to the Parlexo internet to determine the location of the gateway "
             "server.\r\n\r\nPlease make sure you have internet connectivity, your firewall allows gateway "
             "connection or try again later."_s;
    case TextId::StatusQueryError:
      return u"An error occured while getting the status of the message.\r\nError code: %i"_s;
    case TextId::StatusFileMissing:
      return u"Could not locate the status file."_s;
    case TextId::SettingsSection:
      return u"Settings"_s;
    case TextId::ButtonOk:
      return u"&OK"_s;
    case TextId::ButtonYes:
      return u"&Yes"_s;
    case TextId::ButtonNo:
      return u"&No"_s;
    case TextId::ButtonCancel:
      return u"&Cancel"_s;
    case TextId::DontShowAgainValue:
      return u"MessageDontShowAgain%i"_s;
    case TextId::TemplatesTip:
      return u"You can save templates for frequently used messages. Be sure to leave contacts empty if you "
             "do not wish to save your contacts."_s;
  }
  Q_UNREACHABLE();
}

QString withText(TextId id, const QString& value) {
  const QString placeholder = u"%s"_s;
  QString result = text(id);
  const auto place = result.indexOf(placeholder);
  return place < 0 ? result : result.replace(place, placeholder.size(), value);
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
