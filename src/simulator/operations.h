// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <deque>
#include <string>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "protocol/records.h"
#include "protocol/result_code.h"
#include "simulator/accepted_message.h"
#include "simulator/gateway_state.h"
#include "simulator/simulator_options.h"

namespace parlexo::simulator {

/// Carries out the operations of the gateway on its state: one function for each, from a request record to a
/// response record. The texts of the responses live as long as this object.
class Operations {
 public:
  explicit Operations(GatewayState& state) : state_(state) {}

  void handle(const protocol::sessionStart& request, protocol::sessionStartResponse& response);
  void handle(const protocol::sessionEnd& request, protocol::sessionEndResponse& response);
  void handle(const protocol::getVersion& request, protocol::getVersionResponse& response);
  void handle(const protocol::getNews& request, protocol::getNewsResponse& response);

  void handle(const protocol::sendSms& request, protocol::sendSmsResponse& response);
  void handle(const protocol::sendMms& request, protocol::sendMmsResponse& response);
  void handle(const protocol::sendFax& request, protocol::sendFaxResponse& response);
  void handle(const protocol::sendWap& request, protocol::sendWapResponse& response);
  void handle(const protocol::sendVoice_Text& request, protocol::sendVoice_TextResponse& response);
  void handle(const protocol::sendVoice_File& request, protocol::sendVoice_FileResponse& response);
  void handle(const protocol::getStatus& request, protocol::getStatusResponse& response);
  /// The schedule holds for the session until it is disabled. A time that has passed means "now".
  void handle(const protocol::scheduleMessageEnable& request,
              protocol::scheduleMessageEnableResponse& response);
  void handle(const protocol::scheduleMessageDisable& request,
              protocol::scheduleMessageDisableResponse& response);
  /// The sender ID holds for the session's next message: a client that has none to set makes no call, and
  /// must not send under the one before.
  void handle(const protocol::setSmsSenderId& request, protocol::setSmsSenderIdResponse& response);

  void handle(const protocol::getAccountBalance& request, protocol::getAccountBalanceResponse& response);
  void handle(const protocol::getAccountHistory& request, protocol::getAccountHistoryResponse& response);
  void handle(const protocol::setAccountPassword& request, protocol::setAccountPasswordResponse& response);
  void handle(const protocol::getEmailMessaging& request, protocol::getEmailMessagingResponse& response);
  void handle(const protocol::editEmailMessaging& request, protocol::editEmailMessagingResponse& response);

  void handle(const protocol::partnerAddUser& request, protocol::partnerAddUserResponse& response);
  void handle(const protocol::partnerEditUser& request, protocol::partnerEditUserResponse& response);
  void handle(const protocol::partnerAddEvent& request, protocol::partnerAddEventResponse& response);
  void handle(const protocol::partnerGetCostByCountry& request,
              protocol::partnerGetCostByCountryResponse& response);
  void handle(const protocol::partnerGetCostByPhoneNumber& request,
              protocol::partnerGetCostByPhoneNumberResponse& response);
  void handle(const protocol::partnerGetEmailMessaging& request,
              protocol::partnerGetEmailMessagingResponse& response);
  void handle(const protocol::partnerEditEmailMessaging& request,
              protocol::partnerEditEmailMessagingResponse& response);
  void handle(const protocol::partnerStartSessionForSubUser& request,
              protocol::partnerStartSessionForSubUserResponse& response);
  void handle(const protocol::partnerEndSessionForSubUser& request,
              protocol::partnerEndSessionForSubUserResponse& response);

  /// `text` as a response carries it, in UTF-8; lives as long as this object. What the code page has is sent
  /// as the character of its byte's number, as requests do; only what it lacks is sent as itself.
  [[nodiscard]] const char* keep(const QString& text);

  /// What a person should read in the log about the operation; empty for most.
  [[nodiscard]] const QStringList& remarks() const { return remarks_; }

 private:
  struct Sending {
    protocol::ResultCode code = protocol::ResultCode::Success;
    QString receipts;
  };

  [[nodiscard]] Session* session(const std::string& token);
  [[nodiscard]] Account* account(const std::string& token);
  [[nodiscard]] const Account* accountWithPassword(const std::string& user,
                                                   const std::string& password) const;
  /// The account `user` when it belongs to the one of the session.
  [[nodiscard]] Account* subAccount(const Account& parent, const std::string& user);
  [[nodiscard]] protocol::ResultCode check(const AcceptedMessage& message) const;
  [[nodiscard]] Sending send(const std::string& token, AcceptedMessage message, const std::string& numbers);
  [[nodiscard]] std::int64_t costOf(const AcceptedMessage& message) const;
  [[nodiscard]] protocol::ResultCode endSession(const std::string& token);

  GatewayState& state_;
  std::deque<QByteArray> kept_;
  QStringList remarks_;
};

/// Text of a request as characters.
[[nodiscard]] QString textOf(const std::string& wire);

/// Reads "YYYY/MM/DD hh:mm:ss" as a moment of GMT; invalid when it is anything else.
[[nodiscard]] QDateTime readSchedule(const QString& text);

/// What a message of this type costs to one number, an SMS for each of its parts, in hundredths.
[[nodiscard]] std::int64_t priceOf(const Tariff& tariff, MessageType type);

/// A sender ID is a phone number ("+" and 5 to 15 digits, the plus optional) or up to 11 letters, digits and
/// blanks.
[[nodiscard]] bool isSenderId(const QString& text);

/// Whether delivery to `number` fails: it ends in 99 or is not "+" and digits.
[[nodiscard]] bool isUndeliverable(const QString& number);

}  // namespace parlexo::simulator
