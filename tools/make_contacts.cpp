// SPDX-License-Identifier: GPL-3.0-or-later
// make-contacts: writes a generated address book of any size to a folder.

#include <cstdio>
#include <optional>

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QString>

#include "base/product.h"
#include "contacts/samples/sample_contacts.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int badUsage = 2;
// A larger address book needs more memory than a desktop computer has.
constexpr int largestCount = 2'000'000;

std::optional<int> parseCount(const QCommandLineParser& parser, const QString& option) {
  bool valid = false;
  const int count = parser.value(option).toInt(&valid);
  if (valid && count >= 0 && count <= largestCount) return count;
  std::fprintf(stderr, "make-contacts: --%s needs a number from 0 to %d\n", qPrintable(option), largestCount);
  return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QString contactsOption = u"contacts"_s;
  const QString groupsOption = u"groups"_s;
  QCommandLineParser parser;
  parser.setApplicationDescription(
      u"Writes a generated address book to the folder DIR, which must not contain one yet."_s);
  const QCommandLineOption help = parser.addHelpOption();
  QCoreApplication::setApplicationVersion(QLatin1String(parlexo::clientVersion));
  const QCommandLineOption version = parser.addVersionOption();
  parser.addOption({contactsOption, u"The number of contacts (default: 40)."_s, u"N"_s, u"40"_s});
  parser.addOption({groupsOption, u"The number of groups in addition to My Personal Contacts (default: 6)."_s,
                    u"M"_s, u"6"_s});
  parser.addPositionalArgument(u"DIR"_s, u"The contacts folder to fill."_s);
  if (!parser.parse(QCoreApplication::arguments())) {
    std::fprintf(stderr, "make-contacts: %s (see --help)\n", qPrintable(parser.errorText()));
    return badUsage;
  }
  if (parser.isSet(help)) parser.showHelp();
  if (parser.isSet(version)) parser.showVersion();

  const std::optional<int> contacts = parseCount(parser, contactsOption);
  const std::optional<int> groups = parseCount(parser, groupsOption);
  if (!contacts || !groups) return badUsage;
  if (parser.positionalArguments().size() != 1) {
    std::fputs("make-contacts: expected one folder (see --help)\n", stderr);
    return badUsage;
  }
  const QString problem =
      parlexo::writeSampleFolder(parser.positionalArguments().first(), *contacts, *groups);
  if (problem.isEmpty()) return 0;
  std::fprintf(stderr, "make-contacts: %s\n", qPrintable(problem));
  return 1;
}
