#include "messaging/core/receipts.h"

#include <gtest/gtest.h>

namespace parlexo {
namespace {

const QDateTime sendTime(QDate(2026, 3, 4), QTime(5, 6, 7));

TEST(Receipts, becomeEntriesFailedNumbersIncluded) {
  const auto entries = statusEntries(QStringLiteral("+1:R1,+299:FAIL no route"), QStringLiteral("+1,+299"),
                                     QStringLiteral("SMS"), sendTime);
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_EQ(entries[0], (StatusEntry{"+1", "R1", "Delivered to Gateway", "SMS", "04/03/2026 05:06:07"}));
  EXPECT_EQ(entries[1],
            (StatusEntry{"+299", "FAIL no route", "Delivered to Gateway", "SMS", "04/03/2026 05:06:07"}));
}

TEST(Receipts, thatDoNotPairWithTheNumbersAreNotLogged) {
  for (const char* receipts : {"", "+1:R1", "+1:R1,+2:R2,", "+1:R1,+2:R2,+3:R3"})
    EXPECT_TRUE(statusEntries(QString::fromLatin1(receipts), QStringLiteral("+1,+2"), {}, sendTime).empty())
        << receipts;
  EXPECT_TRUE(statusEntries({}, {}, {}, sendTime).empty());
  EXPECT_EQ(statusEntries(QStringLiteral("+1"), QStringLiteral("+1"), {}, sendTime).front().receipt, "")
      << "no colon, a number alone";
}

TEST(Receipts, failuresAreListedOneNumberALine) {
  const QString receipts = QStringLiteral("+199:FAIL,+2:R2,+399:x FAIL");
  EXPECT_TRUE(hasFailures(receipts));
  EXPECT_FALSE(hasFailures(QStringLiteral("+1:fail")));
  EXPECT_EQ(failureWarning(QStringLiteral("Warning"), receipts), "Warning\n+199\n+399\n");
}

}  // namespace
}  // namespace parlexo
