// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <tuple>
#include <type_traits>

#include <QString>

#include "base/progress.h"
#include "connection/client/gateway_client.h"
#include "connection/client/wire_text.h"
#include "protocol/records.h"

namespace parlexo {

/// A file that a call sends. Shares ownership of the bytes, because the call may be abandoned.
struct FileUpload {
  std::shared_ptr<const std::string> bytes;  ///< never null
  Transfer transfer;                         ///< updated while the file is sent

  operator protocol::BinaryData() const {
    return {reinterpret_cast<const unsigned char*>(bytes->data()), static_cast<std::int32_t>(bytes->size())};
  }
};

/// Converts an argument of Gateway::call() to a value that the call can own: text is encoded for the wire,
/// anything else is copied.
template <class Argument>
auto toCallArgument(const Argument& argument) {
  if constexpr (std::is_same_v<Argument, QString>)
    return toWire(argument);
  else
    return argument;
}

/// Makes `client` update the transfer of a file. No-op for other arguments.
template <class Argument>
void attachTransfer(GatewayClient& client, const Argument& argument) {
  if constexpr (std::is_same_v<Argument, FileUpload>) client.setTransfer(argument.transfer);
}

template <class... Parameters>
auto responseParameter(int (GatewayClient::*)(Parameters...))
    -> std::remove_reference_t<std::tuple_element_t<sizeof...(Parameters) - 1, std::tuple<Parameters...>>>;

/// The response type of a method of GatewayClient: its last parameter.
template <auto method>
using ResponseFor = decltype(responseParameter(method));

}  // namespace parlexo
