#include "tests/gateway/tiny_proxy.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTcpSocket>

#include "tests/gateway/fake_gateway.h"

namespace parlexo::testing {

namespace {

bool listensOn(int port) {
  QTcpSocket socket;
  socket.connectToHost(QStringLiteral("127.0.0.1"), static_cast<quint16>(port));
  return socket.waitForConnected(200);
}

}  // namespace

TinyProxy::TinyProxy() : port_(closedPort()) {
  QFile config(folder_.filePath(QStringLiteral("tinyproxy.conf")));
  if (!config.open(QIODevice::WriteOnly)) return;
  config.write(QStringLiteral("Port %1\nListen 127.0.0.1\nAllow 127.0.0.1\nTimeout 20\nMaxClients 20\n"
                              "BasicAuth mary s3cret-word\nLogLevel Info\nLogFile \"%2\"\n")
                   .arg(port_)
                   .arg(folder_.filePath(QStringLiteral("log")))
                   .toUtf8());
  config.close();
  process_.start(QStringLiteral("tinyproxy"),
                 {QStringLiteral("-d"), QStringLiteral("-c"), config.fileName()});
  if (!process_.waitForStarted()) return;
  const QDeadlineTimer deadline(10'000);
  while (!listensOn(port_) && !process_.waitForFinished(20) && !deadline.hasExpired()) {
  }
}

TinyProxy::~TinyProxy() {
  stop();
}

void TinyProxy::stop() {
  process_.kill();
  process_.waitForFinished();
}

QString TinyProxy::log() const {
  QFile file(folder_.filePath(QStringLiteral("log")));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList TinyProxy::requests() const {
  static const QRegularExpression line(QStringLiteral("Request \\(file descriptor \\d+\\): (.*)"));
  QStringList requests;
  for (const auto& match : line.globalMatch(log())) requests << match.captured(1);
  return requests;
}

qsizetype TinyProxy::refusals() const {
  // A refusal leaves no line of its own; what was let through is connected to its server.
  return requests().size() - log().count(QStringLiteral("opensock: opening connection to"));
}

}  // namespace parlexo::testing
