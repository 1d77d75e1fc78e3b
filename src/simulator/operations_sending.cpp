// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <utility>

#include <QCryptographicHash>
#include <QRegularExpression>

#include "simulator/message_remarks.h"
#include "simulator/message_text.h"
#include "simulator/operations.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestDescription = 10240;
constexpr qsizetype longestNote = 120;

AcceptedMessage messageOf(MessageType type) {
  AcceptedMessage message;
  message.type = type;
  return message;
}

void addText(AcceptedMessage& message, const std::string& text) {
  message.rawText = QByteArray::fromStdString(text);
  const MessageText read = readMessageText(message.rawText);
  message.text = read.readable;
  message.unicode = read.unicode;
  message.parts = message.type == MessageType::Sms ? read.parts : 1;
}

void addFile(AcceptedMessage& message, const std::string& name, const protocol::BinaryData& file) {
  message.fileName = textOf(name);
  message.fileSize = file.length;
  const QByteArrayView bytes(reinterpret_cast<const char*>(file.data), file.data ? file.length : 0);
  message.fileSha256 = QCryptographicHash::hash(bytes.toByteArray(), QCryptographicHash::Sha256).toHex();
}

QStringList splitNumbers(const std::string& list) {
  return list.empty() ? QStringList() : textOf(list).split(u',');
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
  const QString form = count == 1 ? u"%1 to %2 number"_s : u"%1 to %2 numbers"_s;
  return form.arg(toWord(message.type)).arg(count);
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
      return message.parts > mostParts;
    case MessageType::Mms:
      return message.text.size() > longestDescription;
    case MessageType::Wap:
      return message.text.size() > longestNote;
    case MessageType::Fax:
      return false;
  }
  return false;
}

int fileLimit(const Options& options, MessageType type) {
  const bool toMobile = type == MessageType::Mms || type == MessageType::Wap;
  return toMobile ? options.maxMobileFileSize : options.maxFileSize;
}

}  // namespace

QDateTime readSchedule(const QString& text) {
  static const QRegularExpression form(u"\\A[0-9]{4}/[0-9]{2}/[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}\\z"_s);
  if (!form.match(text).hasMatch()) return {};
  QDateTime time = QDateTime::fromString(text, u"yyyy/MM/dd HH:mm:ss"_s);
  time.setTimeSpec(Qt::UTC);
  return time;
}

bool isSenderId(const QString& text) {
  static const QRegularExpression number(u"\\A\\+?[0-9]{5,15}\\z"_s);
  static const QRegularExpression name(u"\\A[A-Za-z0-9 ]{1,11}\\z"_s);
  return number.match(text).hasMatch() || (name.match(text).hasMatch() && !text.trimmed().isEmpty());
}

bool isUndeliverable(const QString& number) {
  static const QRegularExpression form(u"\\A\\+[0-9]+\\z"_s);
  return number.endsWith(QLatin1String("99")) || !form.match(number).hasMatch();
}

std::int64_t priceOf(const Tariff& tariff, MessageType type) {
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

std::int64_t Operations::costOf(const AcceptedMessage& message) const {
  const auto delivered =
      message.numbers.size() - std::count_if(message.numbers.begin(), message.numbers.end(), isUndeliverable);
  return priceOf(state_.options.tariff, message.type) * message.parts * delivered;
}

protocol::ResultCode Operations::check(const AcceptedMessage& message) const {
  const bool hasFile = needsFile(message);
  if (!hasFile && message.text.isEmpty()) return protocol::ResultCode::EmptyMessage;
  if (isTextTooLong(message)) return protocol::ResultCode::MessageTooLong;
  const bool goodFile = !message.fileName.isEmpty() && message.fileSize > 0 &&
                        message.fileSize <= fileLimit(state_.options, message.type);
  if (hasFile && !goodFile) return protocol::ResultCode::BadFile;
  return message.numbers.isEmpty() ? protocol::ResultCode::NoRecipients : protocol::ResultCode::Success;
}

Operations::Sending Operations::send(const std::string& token, AcceptedMessage message,
                                     const std::string& numbers) {
  Session* open = session(token);
  Account* account = open ? state_.accounts.find(open->user) : nullptr;
  if (!account) return {protocol::ResultCode::SessionExpired, {}};
  message.numbers = splitNumbers(numbers);
  const protocol::ResultCode checked = check(message);
  if (checked != protocol::ResultCode::Success) return {checked, {}};
  message.costCents = costOf(message);
  if (message.costCents > account->balanceCents) return {protocol::ResultCode::BalanceTooLow, {}};

  message.user = account->user;
  message.time = state_.now();
  message.schedule = open->schedule;
  message.senderId = std::exchange(open->senderId, {});
  const AcceptedMessage& taken = state_.outbox.take(std::move(message), isUndeliverable);
  state_.accounts.post(*account, -taken.costCents, taken.time, historyNote(taken));
  remarks_ = remarksOn(taken);
  return {protocol::ResultCode::Success, joinReceipts(taken)};
}

namespace {

template <class Sending, class Response>
void report(const Sending& sending, Response& response, const char* receipts) {
  response.nErrorCode = toNumber(sending.code);
  response.sListReciepts = receipts;
}

}  // namespace

void Operations::handle(const protocol::sendSms& request, protocol::sendSmsResponse& response) {
  AcceptedMessage message = messageOf(MessageType::Sms);
  addText(message, request.sMessage);
  message.flash = request.bFlash;
  const Sending sending = send(request.sSession, std::move(message), request.sListPhoneNumbers);
  report(sending, response, keep(sending.receipts));
}

void Operations::handle(const protocol::sendMms& request, protocol::sendMmsResponse& response) {
  AcceptedMessage message = messageOf(MessageType::Mms);
  addText(message, request.sDescription);
  addFile(message, request.sFileName, request.oData);
  const Sending sending = send(request.sSession, std::move(message), request.sListPhoneNumbers);
  report(sending, response, keep(sending.receipts));
}

void Operations::handle(const protocol::sendFax& request, protocol::sendFaxResponse& response) {
  AcceptedMessage message = messageOf(MessageType::Fax);
  addFile(message, request.sFileName, request.oData);
  const Sending sending = send(request.sSession, std::move(message), request.sListPhoneNumbers);
  report(sending, response, keep(sending.receipts));
}

void Operations::handle(const protocol::sendWap& request, protocol::sendWapResponse& response) {
  AcceptedMessage message = messageOf(MessageType::Wap);
  addText(message, request.sMessage);
  addFile(message, request.sFileName, request.oData);
  const Sending sending = send(request.sSession, std::move(message), request.sListPhoneNumbers);
  report(sending, response, keep(sending.receipts));
}

void Operations::handle(const protocol::sendVoice_Text& request, protocol::sendVoice_TextResponse& response) {
  AcceptedMessage message = messageOf(MessageType::Voice);
  addText(message, request.sMessage);
  const Sending sending = send(request.sSession, std::move(message), request.sListPhoneNumbers);
  report(sending, response, keep(sending.receipts));
}

void Operations::handle(const protocol::sendVoice_File& request, protocol::sendVoice_FileResponse& response) {
  AcceptedMessage message = messageOf(MessageType::Voice);
  addFile(message, request.sFileName, request.oData);
  const Sending sending = send(request.sSession, std::move(message), request.sListPhoneNumbers);
  report(sending, response, keep(sending.receipts));
}

void Operations::handle(const protocol::getStatus& request, protocol::getStatusResponse& response) {
  const Account* owner = account(request.sSession);
  if (!owner) {
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
    return;
  }
  const auto state = state_.outbox.state(owner->user, textOf(request.sReciept), state_.now());
  if (state)
    response.sStatus = keep(*state);
  else
    response.nErrorCode = toNumber(protocol::ResultCode::UnknownReceipt);
}

void Operations::handle(const protocol::scheduleMessageEnable& request,
                        protocol::scheduleMessageEnableResponse& response) {
  Session* open = session(request.sSession);
  if (!open) {
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
    return;
  }
  const QDateTime time = readSchedule(textOf(request.sDateTimeGmt));
  const QDateTime latest = state_.now().addDays(state_.options.scheduleDaysAhead);
  if (!time.isValid() || time > latest) {
    response.nErrorCode = toNumber(protocol::ResultCode::BadSchedule);
    return;
  }
  open->schedule = time;
}

void Operations::handle(const protocol::scheduleMessageDisable& request,
                        protocol::scheduleMessageDisableResponse& response) {
  Session* open = session(request.sSession);
  if (open)
    open->schedule.reset();
  else
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
}

void Operations::handle(const protocol::setSmsSenderId& request, protocol::setSmsSenderIdResponse& response) {
  Session* open = session(request.sSession);
  const Account* owner = open ? state_.accounts.find(open->user) : nullptr;
  const QString senderId = textOf(request.sSenderId);
  if (!owner)
    response.nErrorCode = toNumber(protocol::ResultCode::SessionExpired);
  else if (!owner->maySetSenderId || !isSenderId(senderId))
    response.nErrorCode = toNumber(protocol::ResultCode::SenderIdRefused);
  else
    open->senderId = senderId;
}

}  // namespace parlexo::simulator
