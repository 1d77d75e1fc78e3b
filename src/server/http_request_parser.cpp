// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/http_request_parser.h"

#include <algorithm>
#include <utility>

namespace parlexo::server {

namespace {

constexpr int badRequest = 400;
constexpr int bodyTooLarge = 413;
constexpr int headerTooLarge = 431;
constexpr int notImplemented = 501;

// nullopt if `text` has characters other than digits, or more digits than any accepted length.
std::optional<std::int64_t> parseLength(const QByteArray& text, int base) {
  constexpr qsizetype maxDigits = 15;
  const bool plain = !text.isEmpty() && text.size() <= maxDigits &&
                     std::all_of(text.begin(), text.end(), [base](char character) {
                       const bool digit = character >= '0' && character <= '9';
                       const char lower = static_cast<char>(character | 0x20);
                       return digit || (base == 16 && lower >= 'a' && lower <= 'f');
                     });
  return plain ? std::optional<std::int64_t>(text.toLongLong(nullptr, base)) : std::nullopt;
}

}  // namespace

HttpRequestParser::State HttpRequestParser::feed(const QByteArray& bytes) {
  buffer_.append(bytes);
  while (advance()) {
  }
  if (stage_ == Stage::Complete) return State::Complete;
  return stage_ == Stage::Refused ? State::Refused : State::NeedsMore;
}

bool HttpRequestParser::consumeExpectContinue() {
  return std::exchange(expectsContinue_, false);
}

HttpRequest HttpRequestParser::releaseRequest() {
  stage_ = Stage::StartLine;
  headerBytes_ = 0;
  chunkLineBytes_ = 0;
  return std::exchange(request_, {});
}

// Advances by one step. Returns false if more bytes are needed or the request is complete or refused.
bool HttpRequestParser::advance() {
  switch (stage_) {
    case Stage::StartLine:
    case Stage::Headers:
    case Stage::Trailers:
      return readHeadLine();
    case Stage::Body:
      return readBody(Stage::Complete);
    case Stage::ChunkData:
      return readBody(Stage::ChunkEnd);
    case Stage::ChunkSize:
    case Stage::ChunkEnd:
      return readChunkLine();
    case Stage::Complete:
    case Stage::Refused:
      return false;
  }
  return false;
}

bool HttpRequestParser::readHeadLine() {
  const std::optional<QByteArray> line = readLine();
  if (!line) return false;
  if (stage_ == Stage::StartLine)
    readStartLine(*line);
  else if (stage_ == Stage::Headers && line->isEmpty())
    finishHeaders();
  else if (stage_ == Stage::Headers)
    readHeader(*line);
  else if (line->isEmpty())
    stage_ = Stage::Complete;
  return true;
}

bool HttpRequestParser::readBody(Stage next) {
  const std::int64_t count = std::min<std::int64_t>(bodyBytesLeft_, buffer_.size());
  request_.body.append(buffer_.constData(), count);
  buffer_.remove(0, count);
  bodyBytesLeft_ -= count;
  if (bodyBytesLeft_ > 0) return false;
  stage_ = next;
  return true;
}

bool HttpRequestParser::readChunkLine() {
  const std::optional<QByteArray> line = readLine();
  if (!line) return false;
  if (stage_ == Stage::ChunkSize)
    readChunkSize(*line);
  else if (line->isEmpty())
    stage_ = Stage::ChunkSize;
  else
    refuse(badRequest);
  return true;
}

void HttpRequestParser::readStartLine(const QByteArray& line) {
  if (line.isEmpty()) return;  // some clients send an extra empty line after a body
  const QList<QByteArray> words = line.split(' ');
  if (words.size() != 3 || words[0].isEmpty() || words[1].isEmpty()) return refuse(badRequest);
  if (words[2] != "HTTP/1.0" && words[2] != "HTTP/1.1") return refuse(badRequest);
  request_.method = words[0];
  request_.target = words[1];
  request_.keepAlive = words[2] == "HTTP/1.1";
  stage_ = Stage::Headers;
}

void HttpRequestParser::readHeader(const QByteArray& line) {
  const qsizetype colon = line.indexOf(':');
  if (colon <= 0 || line.left(colon).contains(' ')) return refuse(badRequest);
  request_.headers.emplace_back(line.left(colon).toLower(), line.mid(colon + 1).trimmed());
}

void HttpRequestParser::finishHeaders() {
  const QByteArray connection = request_.header("connection").toLower();
  if (connection.contains("close")) request_.keepAlive = false;
  if (connection.contains("keep-alive")) request_.keepAlive = true;
  chooseBody();
  const bool hasBody = stage_ == Stage::Body || stage_ == Stage::ChunkSize;
  expectsContinue_ = hasBody && request_.header("expect").toLower() == "100-continue";
}

// Refuses requests with two lengths, or a length and chunks, which are used for request smuggling.
void HttpRequestParser::chooseBody() {
  const auto count = [this](const char* name) {
    return std::count_if(request_.headers.begin(), request_.headers.end(),
                         [name](const auto& header) { return header.first == name; });
  };
  const auto lengths = count("content-length");
  const auto encodings = count("transfer-encoding");
  if (lengths + encodings > 1) return refuse(badRequest);
  if (encodings == 1) {
    if (request_.header("transfer-encoding").toLower() != "chunked") return refuse(notImplemented);
    stage_ = Stage::ChunkSize;
    return;
  }
  const auto length = lengths == 1 ? parseLength(request_.header("content-length"), 10) : 0;
  if (!length) return refuse(badRequest);
  if (*length > maxBodyBytes) return refuse(bodyTooLarge);
  bodyBytesLeft_ = *length;
  stage_ = Stage::Body;
}

void HttpRequestParser::readChunkSize(const QByteArray& line) {
  const qsizetype extension = line.indexOf(';');
  const auto size = parseLength((extension < 0 ? line : line.left(extension)).trimmed(), 16);
  if (!size) return refuse(badRequest);
  if (*size > maxBodyBytes - request_.body.size()) return refuse(bodyTooLarge);
  bodyBytesLeft_ = *size;
  stage_ = *size == 0 ? Stage::Trailers : Stage::ChunkData;
}

// Returns the next line without its end; nullopt if it is not complete. Counts the bytes of the lines, so
// that neither endless headers nor endless tiny chunks are accepted.
std::optional<QByteArray> HttpRequestParser::readLine() {
  const bool betweenChunks = stage_ == Stage::ChunkSize || stage_ == Stage::ChunkEnd;
  std::int64_t& used = betweenChunks ? chunkLineBytes_ : headerBytes_;
  const qsizetype end = buffer_.indexOf('\n');
  const std::int64_t bytes = end < 0 ? buffer_.size() : end + 1;
  if (used + bytes > (betweenChunks ? maxChunkLineBytes : maxHeaderBytes)) {
    refuse(betweenChunks ? bodyTooLarge : headerTooLarge);
    return std::nullopt;
  }
  if (end < 0) return std::nullopt;
  used += bytes;
  QByteArray line = buffer_.left(end);
  buffer_.remove(0, end + 1);
  if (line.endsWith('\r')) line.chop(1);
  return line;
}

void HttpRequestParser::refuse(int status) {
  refusalStatus_ = status;
  stage_ = Stage::Refused;
  buffer_.clear();
}

}  // namespace parlexo::server
