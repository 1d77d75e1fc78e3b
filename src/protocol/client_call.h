// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstddef>
#include <string_view>
#include <type_traits>

#include "protocol/contract.h"
#include "protocol/fields.h"

struct soap;

namespace parlexo::protocol {

/// One call with the gateway, without the types of its records.
struct SoapCall {
  const char* endpoint = nullptr;  ///< null: the service's default endpoint
  const char* action = nullptr;    ///< the SOAPAction; null: the operation's own
  std::string_view operation;
  Fields request;
  Fields response;
  /// True from the moment that the system has taken the whole request until a reply tells what became of it:
  /// in between, and for good when none comes, the gateway may carry it out without our knowing. May be null.
  std::atomic<bool>* outcomeUnknown = nullptr;
  /// Set before the first byte goes out: the bytes of the request without its HTTP header. May be null.
  std::size_t* requestLength = nullptr;
};

/// Sends the request and reads the response on `context`; the connection is closed when this returns. Returns
/// 0 when a whole, well-formed response with its code was read; otherwise the runtime's error: no connection
/// (28), nothing or too little read (-1), an HTTP status, a fault (1, 2 or 12), a malformed reply (other
/// small numbers).
[[nodiscard]] int runSoapCall(::soap* context, const SoapCall& call);

/// The same with records: calls the operation that `Request` names. `response` is cleared first and stays
/// cleared on failure; its strings live as long as the context. `request` is only read.
template <class Request, class Response>
[[nodiscard]] int call(::soap* context, const char* endpoint, Request& request, Response& response,
                       std::atomic<bool>* outcomeUnknown = nullptr, std::size_t* requestLength = nullptr) {
  const auto& operation = operationWith<Request>();
  static_assert(std::is_same_v<typename std::remove_cvref_t<decltype(operation)>::Response, Response>,
                "the response record belongs to another operation");
  response = Response{};
  const int result = runSoapCall(context, {.endpoint = endpoint,
                                           .operation = operation.name,
                                           .request = operation.fields(request),
                                           .response = operation.fields(response),
                                           .outcomeUnknown = outcomeUnknown,
                                           .requestLength = requestLength});
  if (result != 0) response = Response{};
  return result;
}

}  // namespace parlexo::protocol
