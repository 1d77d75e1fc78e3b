// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include <QByteArray>

#include "server/http_message.h"

namespace parlexo::server {

/// Incremental parser of HTTP/1.0 and 1.1 requests, with bodies by length or in chunks. Memory is bounded: 16
/// KiB of headers, 8 MiB of body and 1 MiB of chunk size lines.
class HttpRequestParser {
 public:
  enum class State { NeedsMore, Complete, Refused };

  static constexpr std::int64_t maxHeaderBytes = 16 * 1024;
  static constexpr std::int64_t maxBodyBytes = 8 * 1024 * 1024;
  static constexpr std::int64_t maxChunkLineBytes = 1024 * 1024;

  /// Parses more bytes. Bytes after the end of a complete request are buffered for the next one.
  State feed(const QByteArray& bytes);
  /// The HTTP status for a refused request.
  [[nodiscard]] int refusalStatus() const { return refusalStatus_; }
  /// Returns true, once per request, if the client waits for "100 Continue" before it sends the body.
  [[nodiscard]] bool consumeExpectContinue();
  /// Returns the complete request and starts to parse the next one.
  [[nodiscard]] HttpRequest releaseRequest();

 private:
  enum class Stage { StartLine, Headers, Body, ChunkSize, ChunkData, ChunkEnd, Trailers, Complete, Refused };

  [[nodiscard]] bool advance();
  [[nodiscard]] bool readHeadLine();
  [[nodiscard]] bool readBody(Stage next);
  [[nodiscard]] bool readChunkLine();
  void readStartLine(const QByteArray& line);
  void readHeader(const QByteArray& line);
  void finishHeaders();
  void chooseBody();
  void readChunkSize(const QByteArray& line);
  [[nodiscard]] std::optional<QByteArray> readLine();
  void refuse(int status);

  Stage stage_ = Stage::StartLine;
  HttpRequest request_;
  QByteArray buffer_;
  std::int64_t headerBytes_ = 0;
  std::int64_t chunkLineBytes_ = 0;
  std::int64_t bodyBytesLeft_ = 0;
  int refusalStatus_ = 0;
  bool expectsContinue_ = false;
};

}  // namespace parlexo::server
