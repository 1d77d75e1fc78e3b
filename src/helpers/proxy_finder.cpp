// SPDX-License-Identifier: GPL-3.0-or-later
// The program parlexo-proxy-finder: answers the questions about proxies that may block or run foreign code,
// so that the client can kill it whenever it likes. The answer goes to the standard output, a line each:
//   setting ADDRESS            the proxies that libproxy names for the address, first the best
//   detect                     the address of the network's configuration script
//   script FILE ADDRESS HOST   what the configuration script in FILE answers
// Exit code 0 with an answer, 1 without one, 2 when the question is not understood.

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

constexpr int answered = 0;
constexpr int noAnswer = 1;
constexpr int notUnderstood = 2;

constexpr std::size_t longestAnswer = 4096;
constexpr std::size_t scriptMemory = 256u << 20;  // bytes

void print(std::string_view answer) {
  answer = answer.substr(0, longestAnswer);
  std::printf("%.*s\n", static_cast<int>(answer.size()), answer.data());
}

int tellSetting(const char* address) {
  const std::unique_ptr<pxProxyFactory, void (*)(pxProxyFactory*)> factory(px_proxy_factory_new(),
                                                                           px_proxy_factory_free);
  if (!factory) return noAnswer;
  char** proxies = px_proxy_factory_get_proxies(factory.get(), address);
  if (!proxies) return noAnswer;
  for (char** proxy = proxies; *proxy; ++proxy) print(*proxy);
  px_proxy_factory_free_proxies(proxies);
  return answered;
}

/// The script's address where the environment names one in libproxy's manner. libproxy itself only answers
/// with what a script said, and without an engine of its own says "direct".
std::string scriptOfEnvironment() {
  constexpr std::string_view prefix = "pac+";
  for (const char* name : {"http_proxy", "HTTP_PROXY"}) {
    const char* value = std::getenv(name);
    if (value && std::string_view(value).starts_with(prefix)) return value + prefix.size();
  }
  return {};
}

/// The resolver's search list puts the local domains behind the bare name.
bool networkHasScriptHost() {
  addrinfo wanted{};
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (getaddrinfo("wpad", "80", &wanted, &found) != 0) return false;
  freeaddrinfo(found);
  return true;
}

int tellScriptAddress() {
  if (const std::string address = scriptOfEnvironment(); !address.empty()) {
    print(address);
  } else if (networkHasScriptHost()) {
    print("http://wpad/wpad.dat");
  } else {
    return noAnswer;
  }
  return answered;
}

int dropMessage(const char* /*format*/, std::va_list /*values*/) {
  return 0;
}

int tellScriptAnswer(const char* file, const char* address, const char* host) {
  // The script comes from the network: it may use the processor, memory and little else.
  parlexo::confineHelper(scriptMemory, parlexo::timeouts::proxyScriptRun.count());
  pacparser_set_error_printer(dropMessage);
  if (!pacparser_init() || !pacparser_parse_pac_file(file)) return noAnswer;
  const char* answer = pacparser_find_proxy(address, host);
  if (!answer) return noAnswer;
  print(answer);
  return answered;
}

int answer(int argc, char** argv) {
  const std::vector<std::string_view> words(argv + 1, argv + argc);
  if (words.size() == 2 && words[0] == "setting") return tellSetting(argv[2]);
  if (words.size() == 1 && words[0] == "detect") return tellScriptAddress();
  if (words.size() == 4 && words[0] == "script") return tellScriptAnswer(argv[2], argv[3], argv[4]);
  return notUnderstood;
}

}  // namespace

int main(int argc, char** argv) {
  const int result = answer(argc, argv);
  std::fflush(stdout);
  // Past the libraries' own endings: the script engine need not be taken apart with a script's objects in it.
  std::_Exit(result);
}
