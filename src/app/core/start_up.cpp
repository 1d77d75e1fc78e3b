// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/start_up.h"

#include "base/message_texts.h"
#include "base/product.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {
constexpr int contactsUnreadable = -1;
constexpr int finished = 0;
}  // namespace

int StartUp::run() {
  if (!loadStores()) return contactsUnreadable;
  if (!reachGateway()) return finished;
  parts_.progress.hide();
  compareClientVersion();
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
  parts_.progress.show(u"Loading Contacts from Database..."_s);
  if (!parts_.stores.loadContacts()) return false;
  parts_.stores.loadStatusLog();
  return true;
}

bool StartUp::reachGateway() {
  // The label still speaks of contacts, and a box that is showing takes a new one only this way.
  parts_.progress.setText({});
  if (parts_.locate()) return gatewaySpeaksOurProtocol();
  parts_.notifier.error(text(TextId::LocatorUnreachable));
  return false;
}

bool StartUp::gatewaySpeaksOurProtocol() {
  const auto reply = parts_.gateway.call<&GatewayClient::getVersion>();
  if (reply.answered() && reply->nVersion == protocolVersion) return true;
  parts_.progress.hide();
  if (reply.answered())
    parts_.windows.showUpgrade({});
  else
    parts_.notifier.error(text(TextId::GatewayUnreachable));
  return false;
}

void StartUp::compareClientVersion() {
  const QString& latest = parts_.state.gateway.latestClientVersion;
  // Any difference counts, an older announcement too: the service decides which version it wants.
  if (latest != QLatin1String(clientVersion)) parts_.windows.showUpgrade(latest);
}

}  // namespace parlexo
