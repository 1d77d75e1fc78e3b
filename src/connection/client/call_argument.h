// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <tuple>
#include <utility>

#include <QString>

#include "base/progress.h"
#include "connection/client/gateway_client.h"
#include "connection/client/wire_text.h"
#include "protocol/records.h"

namespace parlexo {

/// A file that a call sends. The call owns the bytes, because it may be left behind.
struct FileUpload {
  std::shared_ptr<const std::string> bytes;  ///< never null
  Transfer transfer;                         ///< updated while the file goes out

  operator protocol::BinaryData() const {
    return {reinterpret_cast<const unsigned char*>(bytes->data()), static_cast<std::int32_t>(bytes->size())};
  }
};

/// What a call keeps of an argument until it runs on another thread: the wire form of text, anything else as
/// it is.
inline std::string toCallArgument(const QString& text) {
  return toWire(text);
}
template <class Value>
Value toCallArgument(Value value) {
  return value;
}

/// Reports the progress of an upload; other arguments have none.
inline void reportProgress(GatewayClient& client, const FileUpload& upload) {
  client.follow(upload.transfer);
}
template <class Value>
void reportProgress(GatewayClient&, const Value&) {}

/// The response type of a method of GatewayClient: its last parameter.
template <class Method>
struct MethodResponse;
template <class... Parameters>
struct MethodResponse<int (GatewayClient::*)(Parameters...)> {
  using Last = std::tuple_element_t<sizeof...(Parameters) - 1, std::tuple<Parameters...>>;
  using Type = std::remove_reference_t<Last>;
};
template <auto method>
using ResponseOf = typename MethodResponse<decltype(method)>::Type;

}  // namespace parlexo
