// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/application.h"

#include <QUrl>

#include "app/core/start_up.h"
#include "base/product.h"
#include "base/secret.h"
#include "connection/locator/gateway_search.h"
#include "connection/locator/proxy_discovery.h"
#include "connection/locator/server_locator.h"
#include "connection/screens/proxy_login_dlg.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<Settings> openSettings(const ProgramOptions& options) {
  if (options.dataDir.isEmpty()) return std::make_unique<Settings>();
  makeFolderPath(options.dataDir);
  return std::make_unique<Settings>(options.dataDir);
}

}  // namespace

Application::Application(const ProgramOptions& options)
    : site_(options.site),
      settings_(openSettings(options)),
      notifier_(*settings_),
      runner_(progress_),
      foreground_(runner_, backgroundQueue_),
      gateway_(state_, foreground_),
      backgroundGateway_(state_, backgroundQueue_),
      stores_(*settings_, notifier_, progress_),
      screens_({.state = state_,
                .settings = *settings_,
                .stores = stores_,
                .gateway = gateway_,
                .background = backgroundGateway_,
                .notifier = notifier_,
                .progress = progress_,
                .runner = runner_}) {
  setServiceHost(settings_->serviceHost());
  if (site_.isEmpty()) site_ = u"http://"_s + settings_->serviceHost();
}

int Application::run() {
  StartUp startUp({.state = state_,
                   .settings = *settings_,
                   .stores = stores_,
                   .gateway = gateway_,
                   .notifier = notifier_,
                   .progress = progress_,
                   .windows = screens_,
                   .locate = [this] { return locateGateway(); }});
  const int exitCode = startUp.run();
  // The main window has closed, so the last call runs without a progress box.
  DirectCallRunner runner;
  shutDown(state_, stores_, progress_, runner);
  wipe(state_.proxy.password);
  return exitCode;
}

bool Application::locateGateway() {
  const QUrl site(site_);
  const ServerLocator locator(site);
  const ProxyDiscovery discovery(site, runner_);
  ProxyLoginBox login(discovery);
  return GatewaySearch({locator, discovery, runner_, progress_, login}).run(state_);
}

}  // namespace parlexo
