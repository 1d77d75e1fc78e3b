// SPDX-License-Identifier: GPL-3.0-or-later
#include "protocol/contract.h"

#include <algorithm>
#include <array>
#include <new>
#include <type_traits>

#include <QRegularExpression>

#include "tests/support/file_bytes.h"
#include "tests/support/test.h"

namespace parlexo::test {
namespace {

/// The first letter of a name has to be that of its type.
QString cellWith(const protocol::Fields& fields) {
  QStringList names;
  for (const protocol::Field& field : fields) {
    EXPECT_EQ(field.name[0], "ssndbo"[static_cast<int>(field.type)]) << field.name;
    names << u"`%1`"_s.arg(QLatin1String(field.name));
  }
  return names.isEmpty() ? u"(none)"_s : names.join(u", "_s);
}

TEST(Contract, isTheTableOfTheDocumentation) {
  const QString page = QString::fromUtf8(readBytes(QStringLiteral(GATEWAY_PAGE)));
  static const QRegularExpression row(u"^\\| \\d+ \\| `\\w+` \\|.*`.*$"_s,
                                      QRegularExpression::MultilineOption);
  QStringList documented;
  for (const auto& match : row.globalMatch(page)) documented << match.captured();

  QStringList found;
  protocol::forEachOperation([&found](const auto& operation) {
    typename std::remove_cvref_t<decltype(operation)>::Request request;
    typename std::remove_cvref_t<decltype(operation)>::Response response;
    found << u"| %1 | `%2` | %3 | %4 |"_s.arg(found.size() + 1)
                 .arg(QString::fromStdString(std::string(operation.name)),
                      cellWith(operation.fields(request)), cellWith(operation.fields(response)));
  });
  EXPECT_EQ(found.size(), 28);
  EXPECT_EQ(found.join(u'\n').toStdString(), documented.join(u'\n').toStdString());
}

/// Each member must have its own address.
TEST(Contract, everyFieldHasItsOwnMember) {
  protocol::forEachOperation([&](const auto& operation) {
    typename std::remove_cvref_t<decltype(operation)>::Request request;
    const protocol::Fields fields = operation.fields(request);
    for (std::size_t i = 1; i < fields.size(); ++i)
      EXPECT_LT(fields[i - 1].value, fields[i].value) << operation.name << " " << fields[i].name;
  });
}

TEST(SecretText, leavesNothingOfItsTextInMemory) {
  using protocol::SecretText;
  constexpr std::string_view password = "s3cret-word";  // short enough to be stored inside std::string
  alignas(SecretText) std::array<char, sizeof(SecretText)> memory{};
  const auto containsPassword = [&] {
    return std::search(memory.begin(), memory.end(), password.begin(), password.end()) != memory.end();
  };
  auto* secret = new (memory.data()) SecretText(std::string(password));
  EXPECT_TRUE(containsPassword());
  *secret = SecretText(std::string("x"));
  EXPECT_FALSE(containsPassword()) << "after an assignment";
  *secret = SecretText(std::string(password));
  std::destroy_at(secret);
  EXPECT_FALSE(containsPassword()) << "after its destruction";
}

static_assert(!std::is_convertible_v<bool, protocol::StopsAtDoubleLine>);
static_assert(!std::is_convertible_v<protocol::StopsAtEndKeyword, protocol::StopsAtDoubleLine>);

}  // namespace
}  // namespace parlexo::test
