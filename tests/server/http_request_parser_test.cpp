// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/http_request_parser.h"

#include "tests/support/test.h"

namespace parlexo::test {
namespace {

using namespace server;
using State = HttpRequestParser::State;

// Feeds a request byte by byte, as a connection may split it anywhere.
State feedSlowly(HttpRequestParser& parser, const QByteArray& bytes) {
  State state = State::NeedsMore;
  for (const char byte : bytes) state = parser.feed(QByteArray(1, byte));
  return state;
}

TEST(HttpRequestParser, readsBodiesByLengthAndInChunks) {
  for (const QByteArray& request : {
           QByteArray("POST /p HTTP/1.1\r\nContent-Length: 5\r\n\r\nhello"),
           QByteArray("POST /p HTTP/1.0\nContent-Length:5\n\nhello"),
           QByteArray("\r\nPOST /p HTTP/1.1\r\nTransfer-Encoding: Chunked\r\n\r\n"
                      "2\r\nhe\r\n03;x=y\r\nllo\r\n0\r\nTrailer: x\r\n\r\n"),
       }) {
    HttpRequestParser parser;
    ASSERT_EQ(feedSlowly(parser, request), State::Complete) << request.toStdString();
    const HttpRequest read = parser.releaseRequest();
    EXPECT_EQ(read.method, "POST");
    EXPECT_EQ(read.path(), "/p");
    EXPECT_EQ(read.body, "hello");
  }
}

TEST(HttpRequestParser, parsesPipelinedRequests) {
  HttpRequestParser parser;
  ASSERT_EQ(parser.feed("GET /a HTTP/1.1\r\n\r\nGET http://host:1/b?c HTTP/1.0\r\nX-Y:  z \r\n\r\n"),
            State::Complete);
  const HttpRequest first = parser.releaseRequest();
  EXPECT_EQ(first.path(), "/a");
  EXPECT_TRUE(first.keepAlive);
  ASSERT_EQ(parser.feed({}), State::Complete);
  const HttpRequest second = parser.releaseRequest();
  EXPECT_EQ(second.path(), "/b");
  EXPECT_EQ(second.header("x-y"), "z");
  EXPECT_FALSE(second.keepAlive);
}

TEST(HttpRequestParser, supportsExpectContinue) {
  HttpRequestParser parser;
  EXPECT_EQ(parser.feed("POST / HTTP/1.1\r\nExpect: 100-continue\r\nContent-Length: 1\r\n\r\n"),
            State::NeedsMore);
  EXPECT_TRUE(parser.consumeExpectContinue());
  EXPECT_FALSE(parser.consumeExpectContinue());
  EXPECT_EQ(parser.feed("x"), State::Complete);
}

TEST(HttpRequestParser, rejectsMalformedAndLargeRequests) {
  const QByteArray post = "POST / HTTP/1.1\r\n";
  const Cases<QByteArray, int> cases = {
      {"\x16\x03\x01 garbage\r\n", 400},
      {"GET / HTTP/2.0\r\n", 400},
      {"GET / HTTP/1.1\r\nno colon\r\n", 400},
      {"GET / HTTP/1.1\r\nName : x\r\n", 400},
      {QByteArray(17 * 1024, 'x'), 431},
      {"GET / HTTP/1.1\r\n" + QByteArray("A: b\r\n").repeated(3000), 431},
      {post + "Content-Length: -1\r\n\r\n", 400},
      {post + "Content-Length: 99999999999999999999\r\n\r\n", 400},
      {post + "Content-Length: 999999999999\r\n\r\n", 413},
      {post + "Content-Length: 1\r\nContent-Length: 2\r\n\r\n", 400},
      {post + "Content-Length: 1\r\nTransfer-Encoding: chunked\r\n\r\n", 400},
      {post + "Transfer-Encoding: gzip\r\n\r\n", 501},
      {post + "Transfer-Encoding: chunked\r\n\r\nfffffff\r\n", 413},
      {post + "Transfer-Encoding: chunked\r\n\r\n-1\r\n", 400},
      {post + "Transfer-Encoding: chunked\r\n\r\n1\r\nxy\r\n", 400},
  };
  for (const auto& [request, status] : cases) {
    HttpRequestParser parser;
    EXPECT_EQ(parser.feed(request), State::Refused) << request.left(80).toStdString();
    EXPECT_EQ(parser.refusalStatus(), status) << request.left(80).toStdString();
  }
}

}  // namespace
}  // namespace parlexo::test
