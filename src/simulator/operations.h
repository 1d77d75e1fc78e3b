// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <utility>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "protocol/records.h"
#include "protocol/result_code.h"
#include "simulator/accepted_message.h"
#include "simulator/gateway_state.h"
#include "simulator/simulator_options.h"

namespace parlexo::simulator {

using protocol::ResultCode;

/// Executes the operations of the gateway on its state. Each operation has an overload of handle(), which
/// fills the response except for its error code and returns that code. Texts in responses are owned by this
/// object.
class Operations {
 public:
  /// `state` must outlive this object.
  explicit Operations(GatewayState& state) : state_(state) {}

  [[nodiscard]] ResultCode handle(const protocol::sessionStart& request,
                                  protocol::sessionStartResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::sessionEnd& request, protocol::sessionEndResponse&);
  [[nodiscard]] ResultCode handle(const protocol::getVersion&, protocol::getVersionResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::getNews&, protocol::getNewsResponse& response);

  [[nodiscard]] ResultCode handle(const protocol::sendSms& request, protocol::sendSmsResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::sendMms& request, protocol::sendMmsResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::sendFax& request, protocol::sendFaxResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::sendWap& request, protocol::sendWapResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::sendVoice_Text& request,
                                  protocol::sendVoice_TextResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::sendVoice_File& request,
                                  protocol::sendVoice_FileResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::getStatus& request, protocol::getStatusResponse& response);
  /// Schedules all further messages of the session until scheduling is disabled. Messages scheduled for a
  /// time in the past are sent immediately.
  [[nodiscard]] ResultCode handle(const protocol::scheduleMessageEnable& request,
                                  protocol::scheduleMessageEnableResponse&);
  [[nodiscard]] ResultCode handle(const protocol::scheduleMessageDisable& request,
                                  protocol::scheduleMessageDisableResponse&);
  /// Sets the sender ID of the session's next message only: a client without a sender ID does not call this,
  /// and its message must not be sent with a previous one.
  [[nodiscard]] ResultCode handle(const protocol::setSmsSenderId& request, protocol::setSmsSenderIdResponse&);

  [[nodiscard]] ResultCode handle(const protocol::getAccountBalance& request,
                                  protocol::getAccountBalanceResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::getAccountHistory& request,
                                  protocol::getAccountHistoryResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::setAccountPassword& request,
                                  protocol::setAccountPasswordResponse&);
  [[nodiscard]] ResultCode handle(const protocol::getEmailMessaging& request,
                                  protocol::getEmailMessagingResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::editEmailMessaging& request,
                                  protocol::editEmailMessagingResponse&);

  [[nodiscard]] ResultCode handle(const protocol::partnerAddUser& request, protocol::partnerAddUserResponse&);
  [[nodiscard]] ResultCode handle(const protocol::partnerEditUser& request,
                                  protocol::partnerEditUserResponse&);
  [[nodiscard]] ResultCode handle(const protocol::partnerAddEvent& request,
                                  protocol::partnerAddEventResponse&);
  [[nodiscard]] ResultCode handle(const protocol::partnerGetCostByCountry& request,
                                  protocol::partnerGetCostByCountryResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::partnerGetCostByPhoneNumber& request,
                                  protocol::partnerGetCostByPhoneNumberResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::partnerGetEmailMessaging& request,
                                  protocol::partnerGetEmailMessagingResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::partnerEditEmailMessaging& request,
                                  protocol::partnerEditEmailMessagingResponse&);
  [[nodiscard]] ResultCode handle(const protocol::partnerStartSessionForSubUser& request,
                                  protocol::partnerStartSessionForSubUserResponse& response);
  [[nodiscard]] ResultCode handle(const protocol::partnerEndSessionForSubUser& request,
                                  protocol::partnerEndSessionForSubUserResponse&);

  /// Encodes `text` for a response, in UTF-8. Characters of the code page are sent as U+0000 to U+00FF by
  /// their byte values, like in requests; only others are sent as themselves. The result is owned by this
  /// object.
  [[nodiscard]] const char* toWire(const QString& text);

  /// Log lines that describe the accepted message; empty for most operations.
  [[nodiscard]] const QStringList& remarks() const { return remarks_; }

 private:
  /// Returns the open session of `token`, or null.
  [[nodiscard]] Session* session(const std::string& token);
  /// Returns the account of the open session of `token`, or null.
  [[nodiscard]] Account* account(const std::string& token);
  /// Returns the account if the password is correct, otherwise null.
  [[nodiscard]] const Account* accountWithPassword(const std::string& user,
                                                   const std::string& password) const;
  /// Returns the account of `user` if it is below `parent`, otherwise null.
  [[nodiscard]] Account* subAccount(const Account& parent, const std::string& user);
  [[nodiscard]] ResultCode endSession(const std::string& token);
  [[nodiscard]] ResultCode validate(const AcceptedMessage& message) const;
  [[nodiscard]] std::int64_t totalCost(const AcceptedMessage& message) const;
  /// Completes `message` and accepts it for delivery. Returns the list of receipts, empty on failure.
  [[nodiscard]] std::pair<ResultCode, QString> accept(const std::string& token, AcceptedMessage message,
                                                      const std::string& numbers);
  template <class Request, class Response>
  [[nodiscard]] ResultCode send(const Request& request, AcceptedMessage&& message, Response& response);

  GatewayState& state_;
  std::deque<QByteArray> wireTexts_;
  QStringList remarks_;
};

/// Decodes a text of a request.
[[nodiscard]] QString toText(const std::string& wire);

/// Price of one message to one number in hundredths of the account's currency; for an SMS, of each part.
[[nodiscard]] std::int64_t unitPrice(const Tariff& tariff, MessageType type);

}  // namespace parlexo::simulator
