#include "addressbook/core/text_search.h"

#include <QStringList>
#include <gmock/gmock.h>

namespace parlexo {
namespace {

using Found = std::vector<int>;

/// Texts of several fields each; the second is empty.
TextSearch sampleSearch() {
  TextSearch search;
  search.reserve(4);
  for (const QStringList& fields :
       {QStringList{"Ann Lee", "+6149", "City 1"}, QStringList{}, QStringList{"lee-ann", "", "Stra\u00dfe"},
        QStringList{QString::fromUtf8("\u00c9va"), "+61 49", QString::fromUtf8("\U0001F600 x")}}) {
    for (const QString& field : fields) search.addField(field);
    search.endText();
  }
  return search;
}

TEST(TextSearch, findsTextsThatHoldEveryWord) {
  const struct {
    QString typed;
    Found found;
  } cases[] = {
      {"", {0, 1, 2, 3}},
      {" \t ", {0, 1, 2, 3}},
      {"ANN", {0, 2}},
      {"lee ann", {0, 2}},
      {"  ann   lee ", {0, 2}},
      {"ann lee city", {0}},
      {"+6149", {0}},
      {"49c", {}},  // no match crosses into the next field
      {"lee+61", {}},
      {"city1", {}},
      {QString::fromUtf8("\u00e9V"), {3}},
      {QString::fromUtf8("STRA\u00dfE"), {2}},
      {QString::fromUtf8("\U0001F600"), {3}},
      {QString(1, QChar(0xD83D)), {}},  // half of that character
      {"zzz", {}},
  };
  const TextSearch search = sampleSearch();
  for (const auto& [typed, found] : cases) EXPECT_EQ(search.find(typed), found) << typed.toStdString();
}

TEST(TextSearch, looksOnlyAmongTheGivenTexts) {
  const TextSearch search = sampleSearch();
  EXPECT_EQ(search.find("a", {1, 2}), Found({2}));
  EXPECT_EQ(search.find("", {1, 3}), Found({1, 3}));
  EXPECT_EQ(search.find("a", {}), Found());
  EXPECT_EQ(TextSearch().find("a"), Found());
}

}  // namespace
}  // namespace parlexo
