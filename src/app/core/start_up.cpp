// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/start_up.h"

#include "base/message_texts.h"
#include "base/product.h"
#include "connection/client/gateway_access.h"

namespace parlexo {

namespace {

constexpr int contactsUnreadable = -1;
constexpr int finished = 0;

// Does nothing if no session is open. The reply is ignored, so the timeout is short. This call bypasses the
// proxy that all other calls use.
void endSession(const RunState& state, CallRunner& runner) {
  if (state.session.isEmpty()) return;
  RunState direct = state;
  direct.proxy = {};
  const Gateway gateway(direct, runner, {.whole = timeouts::sessionEnd});
  (void)gateway.call<&GatewayClient::sessionEnd>(state.session);
}

}  // namespace

int StartUp::run() {
  if (!loadStores()) return contactsUnreadable;
  if (!connectToGateway()) return finished;
  parts_.progress.hide();
  checkClientVersion();
  if (!parts_.windows.logIn()) return finished;
  parts_.progress.show();
  parts_.windows.runMainWindow();
  return finished;
}

bool StartUp::loadStores() {
  if (const auto error = static_cast<int>(parts_.settings.programFolderError()))
    parts_.notifier.error(withNumber(TextId::ModulePathFailed, error));
  makeFolderPath(parts_.settings.contactsFolder());
  makeFolderPath(parts_.settings.templatesFolder());
  parts_.progress.show(tr("Loading Contacts from Database..."));
  if (!parts_.stores.loadContacts()) return false;
  parts_.stores.loadStatusLog();
  return true;
}

bool StartUp::connectToGateway() {
  // Replaces the text about loading contacts by the default; show() does not change an open box.
  parts_.progress.setText({});
  if (parts_.locate()) return checkProtocolVersion();
  parts_.notifier.error(text(TextId::LocatorUnreachable));
  return false;
}

bool StartUp::checkProtocolVersion() {
  const auto reply = parts_.gateway.call<&GatewayClient::getVersion>();
  if (reply.answered() && reply->nVersion == protocolVersion) return true;
  parts_.progress.hide();
  if (reply.answered())
    parts_.windows.showUpgrade({});
  else
    parts_.notifier.error(text(TextId::GatewayUnreachable));
  return false;
}

void StartUp::checkClientVersion() {
  const QString& latest = parts_.state.gateway.latestClientVersion;
  // Older versions are offered as well: the service decides which version it wants.
  if (latest != QLatin1String(clientVersion)) parts_.windows.showUpgrade(latest);
}

void shutDown(const RunState& state, RunStores& stores, Progress& progress, CallRunner& runner) {
  progress.hide();
  stores.releaseContacts();
  stores.saveStatusLog();
  endSession(state, runner);
}

}  // namespace parlexo
