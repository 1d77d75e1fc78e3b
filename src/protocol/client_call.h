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

/// The parameters of one call to the gateway, independent of the types of its records.
struct SoapCall {
  const char* endpoint = nullptr;  ///< null for the service's default endpoint
  const char* action = nullptr;    ///< the SOAPAction; null for the operation's own
  std::string_view operation;
  Fields request;
  Fields response;
  /// Set to true after the whole request has been passed to the system, and back to false when a readable
  /// reply arrives. While it is true, the gateway may have carried out the call. May be null.
  std::atomic<bool>* outcomeUnknown = nullptr;
  /// Set to the length of the request in bytes, without its HTTP header, before anything is sent. May be
  /// null.
  std::size_t* requestLength = nullptr;
};

/// Sends the request, reads the response and closes the connection. Blocks. Returns 0 if a complete,
/// well-formed response with its code was read, otherwise an error of the runtime: 16 if `context` is null
/// (nothing is sent), 28 if there is no connection, -1 if the connection broke, timed out or was cancelled,
/// an HTTP status, a fault (1, 2 or 12), or a small number for a malformed reply. On error the response
/// fields may be partly filled in.
[[nodiscard]] int runSoapCall(::soap* context, const SoapCall& call);

/// Calls the operation that has `Request` and `Response` as its records; see runSoapCall(). On error
/// `response` has its default values. Its strings live as long as the context. `request` is not modified.
template <class Request, class Response>
[[nodiscard]] int call(::soap* context, const char* endpoint, Request& request, Response& response,
                       std::atomic<bool>* outcomeUnknown = nullptr, std::size_t* requestLength = nullptr) {
  const auto& operation = operationWith<Request>();
  static_assert(std::is_same_v<typename std::remove_cvref_t<decltype(operation)>::Response, Response>,
                "the response record belongs to another operation");
  Response received{};
  const int result = runSoapCall(context, {.endpoint = endpoint,
                                           .operation = operation.name,
                                           .request = operation.fields(request),
                                           .response = operation.fields(received),
                                           .outcomeUnknown = outcomeUnknown,
                                           .requestLength = requestLength});
  response = result == 0 ? received : Response{};
  return result;
}

}  // namespace parlexo::protocol
