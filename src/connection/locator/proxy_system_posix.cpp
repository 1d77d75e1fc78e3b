// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDeadlineTimer>
#include <QProcess>
#include <QStringList>

#include "base/program.h"
#include "connection/locator/proxy_system.h"

namespace parlexo {

using namespace Qt::StringLiterals;

namespace {

constexpr int pollMilliseconds = 50;
constexpr int defaultHttpPort = 80;

/// Waits for the end of `process` and kills it on timeout or when `cancel` is raised. Returns true if it
/// succeeded.
bool waitForSuccess(QProcess& process, std::chrono::milliseconds patience, const CancelFlag& cancel) {
  const QDeadlineTimer deadline(patience);
  while (process.state() != QProcess::NotRunning) {
    if (cancel.isRaised() || deadline.hasExpired()) {
      process.kill();
      process.waitForFinished();
      return false;
    }
    process.waitForFinished(pollMilliseconds);
  }
  // error() is of no use: it still reports the timeouts of the polls.
  return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

QString encoded(const QUrl& address) {
  // The script engine encloses the address in single quotes.
  return QString::fromLatin1(address.toEncoded()).replace(u'\'', u"%27"_s);
}

/// Delegates everything that may block to a helper process.
class PosixProxySystem final : public ProxySystem {
 public:
  explicit PosixProxySystem(std::chrono::milliseconds patience) : patience_(patience) {}

  [[nodiscard]] QString configuredProxy(const QUrl& address, const CancelFlag& cancel) const override {
    const QStringList answers = query({u"setting"_s, encoded(address)}, cancel);
    if (answers.isEmpty()) return {};
    // The first one has priority. "direct" and SOCKS are not HTTP proxies.
    const QUrl proxy(answers.first());
    if (proxy.scheme() != QLatin1String("http") || proxy.host().isEmpty()) return {};
    return u"%1:%2"_s.arg(proxy.host()).arg(proxy.port(defaultHttpPort));
  }

  [[nodiscard]] QUrl scriptAddress(const CancelFlag& cancel) const override {
    return QUrl(query({u"detect"_s}, cancel).value(0));
  }

  [[nodiscard]] QString scriptAnswer(const QString& file, const QUrl& address,
                                     const CancelFlag& cancel) const override {
    return query({u"script"_s, file, encoded(address), address.host(QUrl::FullyEncoded)}, cancel).value(0);
  }

 private:
  /// Runs the helper, which limits its own output, and returns the lines that it printed; empty on failure. A
  /// separate process can be killed even if a name lookup or a script in it hangs.
  [[nodiscard]] QStringList query(const QStringList& arguments, const CancelFlag& cancel) const {
    const QString program = helperProgram(u"parlexo-proxy-finder"_s);
    if (program.isEmpty()) return {};
    QProcess finder;
    finder.setStandardInputFile(QProcess::nullDevice());
    finder.setStandardErrorFile(QProcess::nullDevice());
    finder.start(program, arguments, QIODevice::ReadOnly);
    if (!waitForSuccess(finder, patience_, cancel)) return {};
    return QString::fromUtf8(finder.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
  }

  std::chrono::milliseconds patience_;
};

}  // namespace

std::shared_ptr<const ProxySystem> makeProxySystem(std::chrono::milliseconds patience) {
  return std::make_shared<PosixProxySystem>(patience);
}

}  // namespace parlexo
