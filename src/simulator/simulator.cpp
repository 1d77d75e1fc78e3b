// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/simulator.h"

#include <algorithm>
#include <atomic>
#include <utility>

#include <QThread>

#include "server/gateway_replies.h"
#include "server/http_server.h"
#include "simulator/gateway_service.h"

namespace parlexo::simulator {

using namespace Qt::StringLiterals;

/// The service with its server and thread. The mutex serialises start() and stop(); the service locks itself.
class Simulator::Engine {
 public:
  explicit Engine(const Options& options) : options_(options), service_(options) {
    thread_.setObjectName(u"gateway simulator"_s);
    // A connection without a context object runs on the finishing thread, where the server must be destroyed.
    QObject::connect(&thread_, &QThread::finished, [this] { server_.reset(); });
  }
  ~Engine() { stop(); }
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  bool start();
  void stop();
  [[nodiscard]] quint16 port() const { return port_; }
  [[nodiscard]] QString errorText() const;
  [[nodiscard]] QString site() const;
  [[nodiscard]] GatewayService& service() { return service_; }

 private:
  [[nodiscard]] std::unique_ptr<server::HttpServer> createServer();
  void stopThread();

  const Options options_;
  GatewayService service_;
  mutable std::mutex mutex_;
  QThread thread_;
  std::unique_ptr<server::HttpServer> server_;  // used and destroyed on thread_
  std::atomic<quint16> port_ = 0;
  QString errorText_;
};

std::unique_ptr<server::HttpServer> Simulator::Engine::createServer() {
  server::HttpHooks hooks{[this] { return service_.refusesConnection(); },
                          [this](const server::HttpRequest& request) { return service_.answer(request); }};
  return std::make_unique<server::HttpServer>(std::move(hooks), options_.requestTimeout, options_.uploadRate);
}

bool Simulator::Engine::start() {
  const std::lock_guard lock(mutex_);
  if (server_) return true;
  server_ = createServer();
  server_->moveToThread(&thread_);
  thread_.start();
  bool isListening = false;
  QMetaObject::invokeMethod(
      server_.get(), [&] { isListening = server_->listen(options_.address, options_.port); },
      Qt::BlockingQueuedConnection);
  if (isListening)
    port_ = server_->serverPort();
  else
    errorText_ = server_->errorString();
  if (!isListening) stopThread();
  return isListening;
}

void Simulator::Engine::stop() {
  const std::lock_guard lock(mutex_);
  if (server_) stopThread();
}

void Simulator::Engine::stopThread() {
  thread_.quit();
  thread_.wait();
}

QString Simulator::Engine::errorText() const {
  const std::lock_guard lock(mutex_);
  return errorText_;
}

QString Simulator::Engine::site() const {
  // A gateway that listens on all addresses is reachable by the loopback address.
  const bool everywhere = options_.address == QHostAddress::Any || options_.address == QHostAddress::AnyIPv4;
  const QHostAddress address = everywhere ? QHostAddress(QHostAddress::LocalHost) : options_.address;
  return u"http://%1:%2"_s.arg(server::hostText(address)).arg(port());
}

Simulator::Simulator(const Options& options) : engine_(std::make_unique<Engine>(options)) {}

Simulator::~Simulator() = default;

bool Simulator::start() {
  return engine_->start();
}

void Simulator::stop() {
  engine_->stop();
}

quint16 Simulator::port() const {
  return engine_->port();
}

QString Simulator::errorText() const {
  return engine_->errorText();
}

QString Simulator::site() const {
  return engine_->site();
}

bool Simulator::setFault(const Fault& fault) {
  if (!findProblem(fault).isEmpty()) return false;
  engine_->service().with([&fault](GatewayState& state) { state.faults.add(fault); });
  return true;
}

void Simulator::clearFaults() {
  engine_->service().with([](GatewayState& state) { state.faults.clear(); });
}

void Simulator::expireSessions() {
  engine_->service().with([](GatewayState& state) { state.sessions.closeAll(); });
}

bool Simulator::setBalance(const QString& user, double balance) {
  return engine_->service().with([&](GatewayState& state) {
    Account* account = state.accounts.find(user);
    if (account) account->balanceCents = toCents(balance);
    return account != nullptr;
  });
}

bool Simulator::rememberTransaction(const QString& user, double amount, const QDateTime& date,
                                    const QString& description) {
  return engine_->service().with([&](GatewayState& state) {
    Account* account = state.accounts.find(user);
    if (!account) return false;
    const std::int64_t balance = account->balanceCents;
    state.accounts.post(*account, toCents(amount), date, description);
    account->balanceCents = balance;
    return true;
  });
}

double Simulator::balance(const QString& user) const {
  return engine_->service().with([&user](GatewayState& state) {
    const Account* account = state.accounts.find(user);
    return account ? toAmount(account->balanceCents) : 0.0;
  });
}

EmailPreferences Simulator::emailPreferences(const QString& user) const {
  return engine_->service().with([&user](GatewayState& state) {
    const Account* account = state.accounts.find(user);
    return account ? account->emailPreferences : EmailPreferences{};
  });
}

bool Simulator::hasPassword(const QString& user, const QString& password) const {
  return engine_->service().with([&](GatewayState& state) {
    const Account* account = state.accounts.find(user);
    return account && account->password == password;
  });
}

void Simulator::rememberReceipt(const QString& user, const QString& receipt) {
  engine_->service().with([&](GatewayState& state) { state.outbox.addDelivered(user, receipt); });
}

std::vector<AcceptedMessage> Simulator::messages() const {
  return engine_->service().with([](GatewayState& state) { return state.outbox.messages(); });
}

std::vector<RecordedCall> Simulator::calls() const {
  return engine_->service().with([](GatewayState& state) { return state.calls; });
}

QStringList Simulator::calledOperations() const {
  QStringList names;
  for (const RecordedCall& call : calls()) names.append(call.operation);
  return names;
}

int Simulator::openSessions() const {
  return engine_->service().with([](GatewayState& state) { return state.sessions.countOpen(state.now()); });
}

QString Simulator::news() const {
  return engine_->service().with([](GatewayState& state) { return state.news; });
}

void Simulator::setNews(const QString& news) {
  engine_->service().with([&news](GatewayState& state) { state.news = news; });
}

}  // namespace parlexo::simulator
