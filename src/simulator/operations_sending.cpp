// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <utility>

#include <QCryptographicHash>
#include <QRegularExpression>

#include "simulator/message_text.h"
#include "simulator/operations.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maxDescriptionLength = 10240;
constexpr qsizetype maxNoteLength = 120;

void addText(AcceptedMessage& message, const std::string& text) {
  message.rawText = QByteArray::fromStdString(text);
  const MessageText parsed = parseMessageText(message.rawText);
  message.text = parsed.readable;
  message.unicode = parsed.unicode;
  message.parts = message.type == MessageType::Sms ? parsed.parts : 1;
}

void addFile(AcceptedMessage& message, const std::string& name, const protocol::BinaryData& file) {
  message.fileName = toText(name);
  message.fileSize = file.length;
  const QByteArrayView bytes(reinterpret_cast<const char*>(file.data), file.data ? file.length : 0);
  message.fileSha256 = QCryptographicHash::hash(bytes.toByteArray(), QCryptographicHash::Sha256).toHex();
}

QStringList splitNumbers(const std::string& list) {
  return list.empty() ? QStringList() : toText(list).split(u',');
}

QString joinReceipts(const AcceptedMessage& message) {
  QStringList pairs;
  pairs.reserve(message.numbers.size());
  for (qsizetype i = 0; i < message.numbers.size(); ++i)
    pairs.append(message.numbers[i] + u':' + message.receipts[i]);
  return pairs.join(u',');
}

QString historyNote(const AcceptedMessage& message) {
  const qsizetype count = message.numbers.size();
  const QString format = count == 1 ? u"%1 to %2 number"_s : u"%1 to %2 numbers"_s;
  return format.arg(toWord(message.type)).arg(count);
}

bool needsText(MessageType type, bool hasFile) {
  return type == MessageType::Sms || (type == MessageType::Voice && !hasFile);
}

bool needsFile(const AcceptedMessage& message) {
  return !needsText(message.type, !message.fileSha256.isEmpty());
}

bool isTextTooLong(const AcceptedMessage& message) {
  switch (message.type) {
    case MessageType::Sms:
    case MessageType::Voice:
      return message.parts > maxParts;
    case MessageType::Mms:
      return message.text.size() > maxDescriptionLength;
    case MessageType::Wap:
      return message.text.size() > maxNoteLength;
    case MessageType::Fax:
      return false;
  }
  return false;
}

int fileLimit(const Options& options, MessageType type) {
  const bool isForMobile = type == MessageType::Mms || type == MessageType::Wap;
  return isForMobile ? options.maxMobileFileSize : options.maxFileSize;
}

// Parses "YYYY/MM/DD hh:mm:ss" in GMT. Returns an invalid time if the format is wrong.
QDateTime parseSchedule(const QString& text) {
  static const QRegularExpression form(u"\\A[0-9]{4}/[0-9]{2}/[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}\\z"_s);
  if (!form.match(text).hasMatch()) return {};
  QDateTime time = QDateTime::fromString(text, u"yyyy/MM/dd HH:mm:ss"_s);
  time.setTimeSpec(Qt::UTC);
  return time;
}

// A sender ID is a phone number (5 to 15 digits, optionally after "+") or up to 11 letters, digits and
// spaces.
bool isSenderId(const QString& text) {
  static const QRegularExpression number(u"\\A\\+?[0-9]{5,15}\\z"_s);
  static const QRegularExpression name(u"\\A[A-Za-z0-9 ]{1,11}\\z"_s);
  return number.match(text).hasMatch() || (name.match(text).hasMatch() && !text.trimmed().isEmpty());
}

bool isUndeliverable(const QString& number) {
  static const QRegularExpression form(u"\\A\\+[0-9]+\\z"_s);
  return number.endsWith(QLatin1String("99")) || !form.match(number).hasMatch();
}

}  // namespace

std::int64_t unitPrice(const Tariff& tariff, MessageType type) {
  switch (type) {
    case MessageType::Sms:
      return tariff.smsPart;
    case MessageType::Mms:
      return tariff.mms;
    case MessageType::Fax:
      return tariff.fax;
    case MessageType::Wap:
      return tariff.wap;
    case MessageType::Voice:
      return tariff.voice;
  }
  return 0;
}

std::int64_t Operations::totalCost(const AcceptedMessage& message) const {
  const auto delivered =
      message.numbers.size() - std::count_if(message.numbers.begin(), message.numbers.end(), isUndeliverable);
  return unitPrice(state_.options.tariff, message.type) * message.parts * delivered;
}

ResultCode Operations::validate(const AcceptedMessage& message) const {
  const bool hasFile = needsFile(message);
  if (!hasFile && message.text.isEmpty()) return ResultCode::EmptyMessage;
  if (isTextTooLong(message)) return ResultCode::MessageTooLong;
  const bool isValidFile = !message.fileName.isEmpty() && message.fileSize > 0 &&
                           message.fileSize <= fileLimit(state_.options, message.type);
  if (hasFile && !isValidFile) return ResultCode::BadFile;
  return message.numbers.isEmpty() ? ResultCode::NoRecipients : ResultCode::Success;
}

std::pair<ResultCode, QString> Operations::accept(const std::string& token, AcceptedMessage message,
                                                  const std::string& numbers) {
  Session* open = session(token);
  Account* account = open ? state_.accounts.find(open->user) : nullptr;
  if (!account) return {ResultCode::SessionExpired, {}};
  message.numbers = splitNumbers(numbers);
  const ResultCode code = validate(message);
  if (code != ResultCode::Success) return {code, {}};
  message.costCents = totalCost(message);
  if (message.costCents > account->balanceCents) return {ResultCode::BalanceTooLow, {}};

  message.user = account->user;
  message.time = state_.now();
  message.schedule = open->schedule;
  message.senderId = std::exchange(open->senderId, {});
  const AcceptedMessage& accepted = state_.outbox.accept(std::move(message), isUndeliverable);
  state_.accounts.post(*account, -accepted.costCents, accepted.time, historyNote(accepted));
  remarks_ = toLogLines(accepted);
  return {ResultCode::Success, joinReceipts(accepted)};
}

template <class Request, class Response>
ResultCode Operations::send(const Request& request, AcceptedMessage&& message, Response& response) {
  const auto [code, receipts] = accept(request.sSession, std::move(message), request.sListPhoneNumbers);
  response.sListReciepts = toWire(receipts);
  return code;
}

ResultCode Operations::handle(const protocol::sendSms& request, protocol::sendSmsResponse& response) {
  AcceptedMessage message{.type = MessageType::Sms, .flash = request.bFlash};
  addText(message, request.sMessage);
  return send(request, std::move(message), response);
}

ResultCode Operations::handle(const protocol::sendMms& request, protocol::sendMmsResponse& response) {
  AcceptedMessage message{.type = MessageType::Mms};
  addText(message, request.sDescription);
  addFile(message, request.sFileName, request.oData);
  return send(request, std::move(message), response);
}

ResultCode Operations::handle(const protocol::sendFax& request, protocol::sendFaxResponse& response) {
  AcceptedMessage message{.type = MessageType::Fax};
  addFile(message, request.sFileName, request.oData);
  return send(request, std::move(message), response);
}

ResultCode Operations::handle(const protocol::sendWap& request, protocol::sendWapResponse& response) {
  AcceptedMessage message{.type = MessageType::Wap};
  addText(message, request.sMessage);
  addFile(message, request.sFileName, request.oData);
  return send(request, std::move(message), response);
}

ResultCode Operations::handle(const protocol::sendVoice_Text& request,
                              protocol::sendVoice_TextResponse& response) {
  AcceptedMessage message{.type = MessageType::Voice};
  addText(message, request.sMessage);
  return send(request, std::move(message), response);
}

ResultCode Operations::handle(const protocol::sendVoice_File& request,
                              protocol::sendVoice_FileResponse& response) {
  AcceptedMessage message{.type = MessageType::Voice};
  addFile(message, request.sFileName, request.oData);
  return send(request, std::move(message), response);
}

ResultCode Operations::handle(const protocol::getStatus& request, protocol::getStatusResponse& response) {
  const Account* owner = account(request.sSession);
  if (!owner) return ResultCode::SessionExpired;
  const auto status = state_.outbox.status(owner->user, toText(request.sReciept), state_.now());
  if (!status) return ResultCode::UnknownReceipt;
  response.sStatus = toWire(*status);
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::scheduleMessageEnable& request,
                              protocol::scheduleMessageEnableResponse&) {
  Session* open = session(request.sSession);
  if (!open) return ResultCode::SessionExpired;
  const QDateTime time = parseSchedule(toText(request.sDateTimeGmt));
  const QDateTime latest = state_.now().addDays(state_.options.scheduleDaysAhead);
  if (!time.isValid() || time > latest) return ResultCode::BadSchedule;
  open->schedule = time;
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::scheduleMessageDisable& request,
                              protocol::scheduleMessageDisableResponse&) {
  Session* open = session(request.sSession);
  if (!open) return ResultCode::SessionExpired;
  open->schedule.reset();
  return ResultCode::Success;
}

ResultCode Operations::handle(const protocol::setSmsSenderId& request, protocol::setSmsSenderIdResponse&) {
  Session* open = session(request.sSession);
  const Account* owner = open ? state_.accounts.find(open->user) : nullptr;
  const QString senderId = toText(request.sSenderId);
  if (!owner) return ResultCode::SessionExpired;
  if (!owner->maySetSenderId || !isSenderId(senderId)) return ResultCode::SenderIdRefused;
  open->senderId = senderId;
  return ResultCode::Success;
}

}  // namespace parlexo::simulator
