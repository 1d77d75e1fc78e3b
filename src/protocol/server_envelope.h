// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sstream>
#include <string>
#include <string_view>

#include "protocol/contract.h"
#include "protocol/fields.h"

struct soap;

namespace parlexo::protocol {

/// Reads a request on the side of the gateway, from the SOAP envelope in the body of the HTTP request.
class RequestReader {
 public:
  /// Reads up to the operation's element. operation() is empty if the envelope is malformed up to there.
  explicit RequestReader(std::string envelope);
  ~RequestReader();
  RequestReader(const RequestReader&) = delete;
  RequestReader& operator=(const RequestReader&) = delete;

  /// The local name of the body's first child, regardless of its namespace; empty if there is none.
  [[nodiscard]] const std::string& operation() const { return operation_; }

  /// Reads the fields of the request. Call at most once. Fields may come in any order; unknown ones are
  /// skipped and missing ones keep their default. Binary data lives as long as this reader. Returns false,
  /// with `request` at its defaults, if the element is not that operation's in the gateway's namespace or the
  /// rest of the envelope is malformed.
  template <class Request>
  [[nodiscard]] bool read(Request& request) {
    request = Request{};
    const auto& operation = operationWith<Request>();
    if (readFields(operation.name, operation.fields(request))) return true;
    request = Request{};
    return false;
  }

 private:
  [[nodiscard]] bool readFields(std::string_view operation, const Fields& fields);

  std::istringstream envelope_;
  ::soap* context_ = nullptr;
  std::string operation_;
};

/// Returns the envelope of a response with `fields`. `operation` is the name without "Response". Empty if out
/// of memory.
[[nodiscard]] std::string responseEnvelope(std::string_view operation, const Fields& fields);

/// The same for a response record, whose strings are UTF-8. Null strings are omitted. Characters that XML
/// forbids become "?".
template <class Response>
[[nodiscard]] std::string responseEnvelope(Response response) {
  const auto& operation = operationWith<Response>();
  return responseEnvelope(operation.name, operation.fields(response));
}

/// Returns the envelope of a SOAP 1.1 fault, in UTF-8. `code` is a qualified name such as "SOAP-ENV:Server";
/// an empty `detail` is omitted. Empty if out of memory.
[[nodiscard]] std::string faultEnvelope(std::string_view code, std::string_view text,
                                        std::string_view detail = {});

}  // namespace parlexo::protocol
