// SPDX-License-Identifier: GPL-3.0-or-later
// The program parlexo-proxy-finder: runs the proxy queries that may block or execute untrusted scripts, so
// that the client can kill them. Prints the results on standard output, one per line:
//   parlexo-proxy-finder setting ADDRESS            the proxies that libproxy returns for ADDRESS, best first
//   parlexo-proxy-finder detect                     the address of the network's configuration script
//   parlexo-proxy-finder script FILE ADDRESS HOST   the result of the configuration script in FILE
// Exit code 0 with a result, 1 without one, 2 for wrong usage.

#include <netdb.h>
#include <pacparser.h>
#include <proxy.h>

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/timeouts.h"
#include "helpers/helper_process.h"

namespace {

constexpr int success = 0;
constexpr int noResult = 1;
constexpr int wrongUsage = 2;

constexpr std::size_t maxLineLength = 4096;
constexpr std::size_t scriptMemory = 256u << 20;  // bytes

void print(std::string_view line) {
  line = line.substr(0, maxLineLength);
  std::printf("%.*s\n", static_cast<int>(line.size()), line.data());
}

int printConfiguredProxies(const char* address) {
  const std::unique_ptr<pxProxyFactory, void (*)(pxProxyFactory*)> factory(px_proxy_factory_new(),
                                                                           px_proxy_factory_free);
  if (!factory) return noResult;
  char** proxies = px_proxy_factory_get_proxies(factory.get(), address);
  if (!proxies) return noResult;
  for (char** proxy = proxies; *proxy; ++proxy) print(*proxy);
  px_proxy_factory_free_proxies(proxies);
  return success;
}

/// Returns the address of the script in the environment, in libproxy's syntax; empty if there is none.
/// libproxy only returns the result of a script, and always "direct" if it was built without a script engine.
std::string environmentScript() {
  constexpr std::string_view prefix = "pac+";
  for (const char* name : {"http_proxy", "HTTP_PROXY"}) {
    const char* value = std::getenv(name);
    if (value && std::string_view(value).starts_with(prefix)) return value + prefix.size();
  }
  return {};
}

/// The resolver's search list appends the local domains to the bare name.
bool networkHasScriptHost() {
  addrinfo hints{};
  hints.ai_socktype = SOCK_STREAM;
  addrinfo* addresses = nullptr;
  if (getaddrinfo("wpad", "80", &hints, &addresses) != 0) return false;
  freeaddrinfo(addresses);
  return true;
}

int printScriptAddress() {
  if (const std::string address = environmentScript(); !address.empty()) {
    print(address);
  } else if (networkHasScriptHost()) {
    print("http://wpad/wpad.dat");
  } else {
    return noResult;
  }
  return success;
}

int ignoreMessage(const char* /*format*/, std::va_list /*arguments*/) {
  return 0;
}

int printScriptResult(const char* file, const char* address, const char* host) {
  parlexo::sandboxProcess(scriptMemory, parlexo::timeouts::proxyScriptRun.count());
  pacparser_set_error_printer(ignoreMessage);
  if (!pacparser_init() || !pacparser_parse_pac_file(file)) return noResult;
  const char* proxy = pacparser_find_proxy(address, host);
  if (!proxy) return noResult;
  print(proxy);
  return success;
}

int run(int argc, char** argv) {
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  if (arguments.size() == 2 && arguments[0] == "setting") return printConfiguredProxies(argv[2]);
  if (arguments.size() == 1 && arguments[0] == "detect") return printScriptAddress();
  if (arguments.size() == 4 && arguments[0] == "script") return printScriptResult(argv[2], argv[3], argv[4]);
  return wrongUsage;
}

}  // namespace

int main(int argc, char** argv) {
  const int result = run(argc, argv);
  std::fflush(stdout);
  // Skips the libraries' clean-up, which would destroy the script engine while objects of the script exist.
  std::_Exit(result);
}
