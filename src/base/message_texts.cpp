#include "base/message_texts.h"

#include <QRegularExpression>

#include "base/product.h"

namespace parlexo {

QString text(TextId id) {
  using namespace Qt::StringLiterals;
  switch (id) {
    case TextId::AboutMenuEntry:
      return u"&About Parlexo Client..."_qs;
    case TextId::RecipientsBlank:
      return u"The contacts list is blank. Select contacts to send message to."_qs;
    case TextId::GatewayUnreachable:
      return u"Could not connect to the Parlexo gateway server.\r\n\r\nPlease make sure you have internet "
             "connectivity, your firewall allows gateway connection or try again later."_qs;
    case TextId::SessionExpired:
      return u"Your Session has expired. Please log back in"_qs;
    case TextId::FaxTooLarge:
      return u"Fax files must be 2MB or less"_qs;
    case TextId::FaxMemory:
      return u"Error sending fax file. Insufficient memory"_qs;
    case TextId::FaxOpen:
      return u"Error opening Fax file:%s"_qs;
    case TextId::FaxTransport:
      return u"Error sending fax file."_qs;
    case TextId::FaxError:
      return u"An error occured while sending the fax file. Error code: %i"_qs;
    case TextId::FaxWarning:
      return u"Warning - The server was unable to send your fax file to the following numbers"_qs;
    case TextId::FaxSuccess:
      return u"Fax message successfully delivered to the server."_qs;
    case TextId::MmsDescriptionTooLong:
      return u"Description must be 10Kb or less"_qs;
    case TextId::MmsTooLarge:
      return u"Error media files must be 50Kb or less"_qs;
    case TextId::MmsMemory:
      return u"Error sending media file. Insufficient memory"_qs;
    case TextId::MmsOpen:
      return u"Error opening media file :%s"_qs;
    case TextId::MmsError:
      return u"An error occured while sending the media file. Error code: %i"_qs;
    case TextId::MmsWarning:
      return u"Warning - The server was unable to send your media file to the following numbers"_qs;
    case TextId::MmsSuccess:
      return u"Media message successfully delivered to the server."_qs;
    case TextId::SmsError:
      return u"An error occured while sending your message.\r\nError code: %i"_qs;
    case TextId::SmsWarning:
      return u"Warning - The server was unable to send your message to the following numbers"_qs;
    case TextId::SmsSuccess:
      return u"SMS message successfully delivered to the server."_qs;
    case TextId::WapTooLarge:
      return u"WAP files must be 50Kb or less"_qs;
    case TextId::WapMemory:
      return u"Error sending WAP file. Insufficient memory"_qs;
    case TextId::WapOpen:
      return u"Error opening WAP file :%s"_qs;
    case TextId::WapError:
      return u"An error occured while sending the WAP file. Error code: %i"_qs;
    case TextId::WapWarning:
      return u"Warning - The server was unable to send your WAP file to the following numbers"_qs;
    case TextId::WapSuccess:
      return u"WAP message successfully delivered to the server."_qs;
    case TextId::ModulePathFailed:
      return u"GetModuleFileName failed (%i)\r\n"_qs;
    case TextId::BalanceLow:
      return u"Your account balance is less than $2.00.\r\nPlease go to %1 and top up your account balance."_qs
          .arg(webPage(QString()));
    case TextId::BalanceZero:
      return u"Your account balance is zero.\r\nPlease go to %1, sign-in and add credit to your "
             "account.\r\n\r\nIf you wish to trial our services then this may only be done via the website "
             "portal. In the web portal click the 'Free Trial' button. The Parlexo Client software requires "
             "credit to send messages."_qs.arg(webPage(QString()));
    case TextId::LocatorUnreachable:
      return u"Could not connect to the Parlexo internet to determine the location of the gateway "
             "server.\r\n\r\nPlease make sure you have internet connectivity, your firewall allows gateway "
             "connection or try again later."_qs;
    case TextId::StatusQueryError:
      return u"An error occured while getting the status of the message.\r\nError code: %i"_qs;
    case TextId::StatusFileMissing:
      return u"Could not locate the status file."_qs;
    case TextId::SettingsSection:
      return u"Settings"_qs;
    case TextId::ButtonOk:
      return u"&OK"_qs;
    case TextId::ButtonYes:
      return u"&Yes"_qs;
    case TextId::ButtonNo:
      return u"&No"_qs;
    case TextId::ButtonCancel:
      return u"&Cancel"_qs;
    case TextId::DontShowAgainValue:
      return u"MessageDontShowAgain%i"_qs;
    case TextId::TemplatesTip:
      return u"You can save templates for frequently used messages. Be sure to leave contacts empty if you "
             "do not wish to save your contacts."_qs;
  }
  Q_UNREACHABLE();
}

QString withText(TextId id, const QString& value) {
  const QString placeholder = QStringLiteral("%s");
  QString result = text(id);
  const auto place = result.indexOf(placeholder);
  return place < 0 ? result : result.replace(place, placeholder.size(), value);
}

QString withNumber(const QString& text, int number) {
  static const QRegularExpression placeholder(QStringLiteral("%[id]"));
  QString result = text;
  const auto match = placeholder.match(text);
  if (match.hasMatch())
    result.replace(match.capturedStart(), match.capturedLength(), QString::number(number));
  return result;
}

}  // namespace parlexo
