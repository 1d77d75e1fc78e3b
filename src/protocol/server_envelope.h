// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sstream>
#include <string>
#include <string_view>

#include "protocol/contract.h"
#include "protocol/fields.h"

struct soap;

namespace parlexo::protocol {

/// Reads one request as the gateway receives it: the envelope, that is, the body of the HTTP request.
class RequestReader {
 public:
  /// Reads up to the operation's element. A malformed envelope leaves operation() empty.
  explicit RequestReader(std::string envelope);
  ~RequestReader();
  RequestReader(const RequestReader&) = delete;
  RequestReader& operator=(const RequestReader&) = delete;

  /// The local name of the body's first child, in whatever namespace; empty when there is none.
  [[nodiscard]] const std::string& operation() const { return operation_; }

  /// Reads the fields of the request; to be called once. Fields may come in any order, unknown ones are
  /// passed over, absent ones keep their default. The bytes of binary fields live as long as this reader.
  /// Returns false, and leaves `request` at its defaults, when the element is not the one of that operation
  /// in the gateway's namespace or anything up to the end of the envelope is malformed.
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

/// The envelope that answers with `fields`; `operation` is the name without "Response".
[[nodiscard]] std::string responseEnvelope(std::string_view operation, const Fields& fields);

/// The envelope that answers with a response record, whose strings are UTF-8. Null strings are left out.
/// Characters that XML cannot carry become "?".
template <class Response>
[[nodiscard]] std::string responseEnvelope(Response response) {
  const auto& operation = operationWith<Response>();
  return responseEnvelope(operation.name, operation.fields(response));
}

/// The envelope of a SOAP 1.1 fault, in UTF-8; `code` is a qualified name like "SOAP-ENV:Server", an empty
/// `detail` is left out.
[[nodiscard]] std::string faultEnvelope(std::string_view code, std::string_view text,
                                        std::string_view detail = {});

}  // namespace parlexo::protocol
