#include "app/core/command_line.h"

#include <ostream>
#include <string>

#include <QDir>
#include <gtest/gtest.h>

namespace parlexo {
namespace {

using namespace Qt::StringLiterals;

std::string joined(const QStringList& arguments) {
  if (arguments.isEmpty()) return "no arguments";
  const std::string text = arguments.join(u' ').toStdString();
  return text.empty() ? "an empty argument" : text;
}

struct Accepted {
  QStringList arguments;
  bool demo;
  QString site;
  QString dataDir;
};

void PrintTo(const Accepted& accepted, std::ostream* out) {
  *out << joined(accepted.arguments);
}

class AcceptedCommandLine : public testing::TestWithParam<Accepted> {};

TEST(CommandLine, journeyIsADemoWithAFolderForItsPictures) {
  const auto parsed = parseCommandLine({u"--journey"_qs, u"/tmp/pictures"_qs});
  const auto* options = std::get_if<ProgramOptions>(&parsed);
  ASSERT_TRUE(options);
  EXPECT_TRUE(options->demo);
  EXPECT_EQ(options->journeyDir, u"/tmp/pictures"_qs);
}

TEST_P(AcceptedCommandLine, setsTheOptions) {
  const auto parsed = parseCommandLine(GetParam().arguments);
  const auto* options = std::get_if<ProgramOptions>(&parsed);
  ASSERT_TRUE(options);
  EXPECT_EQ(options->demo, GetParam().demo);
  EXPECT_EQ(options->site, GetParam().site);
  EXPECT_EQ(options->dataDir, GetParam().dataDir);
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, AcceptedCommandLine,
    testing::Values(
        Accepted{{}, false, {}, {}}, Accepted{{u"--demo"_qs}, true, {}, {}},
        Accepted{{u"--site"_qs, u"http://127.0.0.1:8081"_qs}, false, u"http://127.0.0.1:8081"_qs, {}},
        Accepted{{u"--site=http://[::1]:8081/"_qs, u"--data-dir=/tmp/a=b"_qs},
                 false,
                 u"http://[::1]:8081"_qs,
                 u"/tmp/a=b"_qs},
        Accepted{{u"--data-dir"_qs, u"x"_qs}, false, {}, QDir::currentPath() + u"/x"_qs},
        Accepted{{u"-platform"_qs, u"offscreen"_qs, u"-style=fusion"_qs, u"--demo"_qs}, true, {}, {}}));

struct Ending {
  QStringList arguments;
  int exitCode;
  QString mentions;
};

void PrintTo(const Ending& ending, std::ostream* out) {
  *out << joined(ending.arguments);
}

class EndingCommandLine : public testing::TestWithParam<Ending> {};

TEST_P(EndingCommandLine, endsWithACodeAndAText) {
  const auto parsed = parseCommandLine(GetParam().arguments);
  const auto* end = std::get_if<ImmediateEnd>(&parsed);
  ASSERT_TRUE(end);
  EXPECT_EQ(end->exitCode, GetParam().exitCode);
  EXPECT_TRUE(end->output.contains(GetParam().mentions)) << end->output.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, EndingCommandLine,
    testing::Values(Ending{{u"--help"_qs}, 0, u"--data-dir DIR"_qs},
                    Ending{{u"--version"_qs}, 0, u"Parlexo Client 2.24\n"_qs},
                    Ending{{u"--demos"_qs}, 2, u"unknown option \"--demos\""_qs},
                    Ending{{u"-h"_qs}, 0, u"--data-dir DIR"_qs},
                    Ending{{u"-demo"_qs}, 2, u"unknown option \"-demo\""_qs},
                    Ending{{u"demo"_qs}, 2, u"unknown option \"demo\""_qs},
                    Ending{{QString()}, 2, u"unknown"_qs},
                    Ending{{u"--site"_qs}, 2, u"option \"--site\" needs a value"_qs},
                    Ending{{u"--site"_qs, u"--demo"_qs}, 2, u"option \"--site\" needs a value"_qs},
                    Ending{{u"--data-dir="_qs}, 2, u"option \"--data-dir\" needs a value"_qs},
                    Ending{{u"--site"_qs, u"127.0.0.1:80"_qs}, 2, u"is not a site"_qs},
                    Ending{{u"--site=https://a.example"_qs}, 2, u"is not a site"_qs},
                    Ending{{u"--site=http://a.example/x"_qs}, 2, u"is not a site"_qs}));

}  // namespace
}  // namespace parlexo
