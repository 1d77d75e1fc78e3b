// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/command_line.h"

#include <optional>

#include <QDir>
#include <QUrl>

#include "base/product.h"

namespace parlexo {

namespace {

using namespace Qt::StringLiterals;

constexpr int wrongUsage = 2;

QString helpText() {
  return u"Usage: parlexo-client [options]\n"
         "\n"
         "Sends messages through the Parlexo gateway and follows their delivery.\n"
         "\n"
         "Options:\n"
         "  --demo                  try the program out: a gateway simulator inside the process,\n"
         "                          sample contacts, account demo with password demo1234\n"
         "  --site http://HOST:PORT ask this web site where the gateway is, not %1\n"
         "  --data-dir DIR          keep contacts, templates, status log and settings in DIR\n"
         "  -v, --version           print the version and end\n"
         "  -h, --help              print this text and end\n"_s.arg(defaultServiceHost());
}

ImmediateEnd wrong(const QString& message) {
  return {wrongUsage, u"parlexo-client: "_s + message + u"\nTry \"parlexo-client --help\".\n"_s};
}

bool isToolkitFlag(const QString& argument) {
  static const QStringList names = {u"-reverse"_s, u"-nograb"_s, u"-dograb"_s, u"-widgetcount"_s};
  return names.contains(argument) || argument.startsWith(u"-style="_s) ||
         argument.startsWith(u"-stylesheet="_s);
}

bool isToolkitOptionWithValue(const QString& argument) {
  static const QStringList names = {u"-platform"_s,
                                    u"-platformtheme"_s,
                                    u"-platformpluginpath"_s,
                                    u"-plugin"_s,
                                    u"-qwindowgeometry"_s,
                                    u"-qwindowtitle"_s,
                                    u"-qwindowicon"_s,
                                    u"-style"_s,
                                    u"-stylesheet"_s,
                                    u"-session"_s,
                                    u"-display"_s,
                                    u"-geometry"_s,
                                    u"-title"_s,
                                    u"-icon"_s,
                                    u"-name"_s};
  return names.contains(argument);
}

bool isSite(const QString& text) {
  const QUrl url(text, QUrl::StrictMode);
  const bool bare = (url.path().isEmpty() || url.path() == u"/"_s) && !url.hasQuery() && !url.hasFragment();
  return url.isValid() && url.scheme() == u"http"_s && !url.host().isEmpty() && url.userInfo().isEmpty() &&
         bare;
}

// Walks over the arguments one by one; an option may carry its value behind "=" or as the next argument.
class Parser {
 public:
  explicit Parser(const QStringList& arguments) : rest_(arguments) {}

  std::variant<ProgramOptions, ImmediateEnd> parse() {
    while (!rest_.isEmpty() && !end_) take(rest_.takeFirst());
    if (end_) return *end_;
    return options_;
  }

 private:
  void take(const QString& argument) {
    if (isToolkitFlag(argument)) return;
    if (!isToolkitOptionWithValue(argument)) return takeOwn(argument);
    if (!rest_.isEmpty()) rest_.removeFirst();
  }

  void takeOwn(const QString& argument) {
    if (argument == u"--help"_s || argument == u"-h"_s) {
      end_ = ImmediateEnd{0, helpText()};
    } else if (argument == u"--version"_s || argument == u"-v"_s) {
      end_ = ImmediateEnd{0, u"Parlexo Client %1\n"_s.arg(QLatin1String(clientVersion))};
    } else if (argument == u"--demo"_s) {
      options_.demo = true;
    } else {
      takeWithValue(argument.section(u'=', 0, 0), argument);
    }
  }

  void takeWithValue(const QString& name, const QString& argument) {
    static const QStringList names = {u"--site"_s, u"--data-dir"_s};
    if (!names.contains(name)) {
      end_ = wrong(u"unknown option \"%1\""_s.arg(argument));
      return;
    }
    const QString value = valueOf(argument);
    if (value.isEmpty())
      end_ = wrong(u"option \"%1\" needs a value"_s.arg(name));
    else
      store(name, value);
  }

  void store(const QString& name, const QString& value) {
    if (name == u"--site"_s) return takeSite(value);
    options_.dataDir = QDir(value).absolutePath();
  }

  QString valueOf(const QString& argument) {
    if (argument.contains(u'=')) return argument.section(u'=', 1);
    return rest_.isEmpty() || rest_.first().startsWith(u"--"_s) ? QString() : rest_.takeFirst();
  }

  void takeSite(const QString& value) {
    if (isSite(value))
      options_.site = value.endsWith(u'/') ? value.chopped(1) : value;
    else
      end_ = wrong(u"\"%1\" is not a site such as http://127.0.0.1:8080"_s.arg(value));
  }

  QStringList rest_;
  ProgramOptions options_;
  std::optional<ImmediateEnd> end_;
};

}  // namespace

std::variant<ProgramOptions, ImmediateEnd> parseCommandLine(const QStringList& arguments) {
  return Parser(arguments).parse();
}

}  // namespace parlexo
