// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/soap_context.h"

#include <stdsoap2.h>

#include "protocol/socket_io.h"

namespace parlexo::protocol {

namespace {

/// More than any answer of the gateway; what is longer comes from something else or means harm.
constexpr ULONG64 longestReply = 32u << 20;
/// Envelope, body, wrapper, field: a reply needs four levels, a fault some more. What is passed over may be
/// nested to any depth, as the runtime skips it without recursion.
constexpr unsigned deepestNesting = 64;

}  // namespace

::soap* newStreamContext() {
  ::soap* context = soap_new();
  if (!context) return nullptr;
  // Naming the table here also makes the linker take the runtime's hooks, which stand beside it.
  if (!context->namespaces) soap_set_namespaces(context, namespaces);
  context->maxlevel = deepestNesting;
  return context;
}

::soap* newClientContext(const IoPatience& patience) {
  ::soap* context = newStreamContext();
  if (!context) return nullptr;
  context->recv_maxlength = longestReply;
  // Requests are bytes with one character each; replies may hold any character.
  soap_set_imode(context, SOAP_C_UTFSTRING);
  installSocketIo(*context, patience);
  return context;
}

void freeContext(::soap* context) {
  if (!context) return;
  soap_destroy(context);
  soap_end(context);
  soap_free(context);
}

}  // namespace parlexo::protocol
