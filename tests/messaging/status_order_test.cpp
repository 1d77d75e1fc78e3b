#include "messaging/core/status_order.h"

#include <random>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace parlexo {
namespace {

using testing::ElementsAre;

int compared(const char* first, const char* second) {
  return compareStatusInstants(statusInstant(QString::fromLatin1(first)),
                               statusInstant(QString::fromLatin1(second)));
}

std::vector<std::string> sorted(const std::vector<const char*>& dates) {
  std::vector<StatusEntry> entries;
  for (const char* date : dates) {
    StatusEntry entry;
    entry.date = QString::fromLatin1(date);
    entries.push_back(entry);
  }
  sortByStatusDate(entries);
  std::vector<std::string> result;
  result.reserve(entries.size());
  for (const StatusEntry& entry : entries) result.push_back(entry.date.toStdString());
  return result;
}

TEST(StatusOrder, onlyTheSecondsOfTheDifferenceCount) {
  EXPECT_EQ(compared("01/02/2026 10:00:30", "01/02/2026 10:00:10"), 20);
  EXPECT_EQ(compared("01/02/2026 10:00:10", "01/02/2026 10:00:30"), -20);
  EXPECT_EQ(compared("05/02/2026 23:00:00", "01/02/2026 10:00:00"), 0);
  EXPECT_EQ(compared("01/02/2026 10:01:05", "01/02/2026 10:00:10"), 55);
  EXPECT_EQ(compared("01/02/2026 10:00:00", "02/02/2026 10:00:59"), -59);
  EXPECT_EQ(compared("8/9/2026 8:09:08", "08/09/2026 08:09:09"), -1);
  EXPECT_EQ(statusInstant(QStringLiteral("yesterday")), 0);
}

TEST(StatusOrder, wholeMinutesApartKeepTheirPlaces) {
  EXPECT_THAT(sorted({"03/01/2026 10:00:05", "01/01/2026 10:00:05", "02/01/2026 10:00:05"}),
              ElementsAre("03/01/2026 10:00:05", "01/01/2026 10:00:05", "02/01/2026 10:00:05"));
}

TEST(StatusOrder, mergesNeighboursFirstThoughTheOrderGoesInACircle) {
  // a > b and b > c by the seconds, but a and c are whole minutes apart.
  const char* a = "01/01/2026 10:01:00";
  const char* b = "01/01/2026 10:00:30";
  const char* c = "01/01/2026 10:00:00";
  EXPECT_THAT(sorted({a, b, c}), ElementsAre(c, b, a));
  EXPECT_THAT(sorted({a, c, b}), ElementsAre(b, a, c));  // a and c tie, then b goes before a
  EXPECT_THAT(sorted({b, a, c}), ElementsAre(c, b, a));
}

TEST(StatusOrder, keepsEveryRowOfALongShuffledList) {
  std::mt19937 random(1);
  std::vector<StatusEntry> entries;
  for (int i = 0; i < 10'001; ++i) {
    StatusEntry entry;
    entry.receipt = QString::number(i);
    const auto part = [&](unsigned from, unsigned count) {
      return QStringLiteral("%1").arg(from + static_cast<unsigned>(random()) % count, 2, 10, QChar(u'0'));
    };
    entry.date =
        part(1, 28) + "/" + part(1, 12) + "/2026 " + part(0, 24) + ":" + part(0, 60) + ":" + part(0, 60);
    entries.push_back(entry);
  }
  sortByStatusDate(entries);
  std::set<QString> seen;
  for (const StatusEntry& entry : entries) seen.insert(entry.receipt);
  EXPECT_EQ(seen.size(), 10'001U);
}

}  // namespace
}  // namespace parlexo
