// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/core/command_line.h"

#include <QDir>
#include <gtest/gtest.h>

namespace parlexo {
namespace {

auto parse(const QStringList& arguments) {
  return parseCommandLine(QStringList("parlexo-client") + arguments);
}

TEST(CommandLine, setsTheOptions) {
  const struct {
    QStringList arguments;
    bool demo;
    QString site;
    QString dataDir;
  } cases[] = {
      {{"--site=http://[::1]:8081/", "--data-dir=/tmp/a=b"}, false, "http://[::1]:8081", "/tmp/a=b"},
      {{"--data-dir", "x"}, false, {}, QDir::currentPath() + "/x"},
      {{"-platform", "offscreen", "-style=fusion", "-reverse", "--demo"}, true, {}, {}},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.arguments.join(u' ').toStdString());
    const auto parsed = parse(each.arguments);
    const auto* options = std::get_if<ProgramOptions>(&parsed);
    ASSERT_TRUE(options);
    EXPECT_EQ(options->demo, each.demo);
    EXPECT_EQ(options->site, each.site);
    EXPECT_EQ(options->dataDir, each.dataDir);
  }
}

TEST(CommandLine, exitsEarlyWithACodeAndAText) {
  const struct {
    QStringList arguments;
    int exitCode;
    QString mentions;
  } cases[] = {
      {{"--help"}, 0, "--data-dir <DIR>"},
      {{"-h"}, 0, "--site <http://HOST:PORT>"},
      {{"--version"}, 0, "Parlexo Client 2.24\n"},
      {{"--demos"}, 2, "Unknown option 'demos'"},
      {{"demo"}, 2, "unexpected argument \"demo\""},
      {{"--data-dir"}, 2, "Missing value"},
      {{"--site", "--demo"}, 2, "option \"--site\" needs a value"},
      {{"--data-dir="}, 2, "option \"--data-dir\" needs a value"},
      {{"--site=https://a.example"}, 2, "is not a site"},
      {{"--site=http://a.example/x"}, 2, "is not a site"},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.arguments.join(u' ').toStdString());
    const auto parsed = parse(each.arguments);
    const auto* exit = std::get_if<EarlyExit>(&parsed);
    ASSERT_TRUE(exit);
    EXPECT_EQ(exit->exitCode, each.exitCode);
    EXPECT_TRUE(exit->output.contains(each.mentions)) << exit->output.toStdString();
  }
}

}  // namespace
}  // namespace parlexo
