// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include <QByteArray>

#include "server/http_message.h"

namespace parlexo::server {

/// Reads HTTP/1.0 and 1.1 requests from bytes that arrive in any pieces, bodies by length or in chunks. What
/// a peer may make it hold is bounded: 16 KiB of header, 8 MiB of body and 1 MiB of lines between chunks.
class HttpRequestParser {
 public:
  enum class State { NeedsMore, Complete, Refused };

  static constexpr std::int64_t maxHeaderBytes = 16 * 1024;
  static constexpr std::int64_t maxBodyBytes = 8 * 1024 * 1024;
  static constexpr std::int64_t maxChunkLineBytes = 1024 * 1024;

  /// Takes the next bytes. Once complete, further bytes are kept for the request after take().
  State feed(const QByteArray& bytes);
  /// The status to refuse the request with.
  [[nodiscard]] int refusalStatus() const { return refusalStatus_; }
  /// True once when the client waits for "100 Continue" before it sends the body.
  [[nodiscard]] bool takeContinueWish();
  /// Hands out the complete request and begins the next one.
  [[nodiscard]] HttpRequest take();

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
  [[nodiscard]] std::optional<QByteArray> takeLine();
  void refuse(int status);

  Stage stage_ = Stage::StartLine;
  HttpRequest request_;
  QByteArray buffer_;
  std::int64_t headerBytes_ = 0;
  std::int64_t chunkLineBytes_ = 0;
  std::int64_t bodyBytesLeft_ = 0;
  int refusalStatus_ = 0;
  bool continueWish_ = false;
};

}  // namespace parlexo::server
