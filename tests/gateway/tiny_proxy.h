#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

namespace parlexo::testing {

/// A real proxy, tinyproxy, on a loopback port of its own, that wants the login "mary" with "s3cret-word".
class TinyProxy {
 public:
  TinyProxy();
  ~TinyProxy();
  TinyProxy(const TinyProxy&) = delete;
  TinyProxy& operator=(const TinyProxy&) = delete;

  [[nodiscard]] bool isRunning() const { return process_.state() == QProcess::Running; }
  [[nodiscard]] int port() const { return port_; }
  void stop();

  /// The request lines that its log shows, in order, such as "GET http://127.0.0.1:80/x HTTP/1.1"; refused
  /// ones too.
  [[nodiscard]] QStringList requests() const;
  /// How many of the requests it kept to itself for want of the right login.
  [[nodiscard]] qsizetype refusals() const;

 private:
  [[nodiscard]] QString log() const;

  QTemporaryDir folder_;
  QProcess process_;
  int port_;
};

}  // namespace parlexo::testing
