// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/phone_number.h"

#include "tests/support/test.h"

namespace parlexo::test {
namespace {

using Problem = PhoneNumber::Problem;

std::string read(const char* written, const char* code) {
  const PhoneNumber number = PhoneNumber::parse(QString::fromUtf8(written), QString::fromLatin1(code));
  return (number.isValid() ? number.text() : number.problemText()).toStdString();
}

TEST(PhoneNumber, parsesNationalNumbers) {
  const Cases<const char*, const char*, const char*> cases = {
      {"0412 345 678", "+61", "+61412345678"},
      {"412345678", "+61", "+61412345678"},  // without the zero, as from a spreadsheet
      {"61412345678", "+61", "+61412345678"},
      {"1300 975 707", "+61", "+611300975707"},
      {"91234 56789", "+91", "+919123456789"},  // begins like its country code
      {"391 234 5678", "+39", "+393912345678"},
      {"06 1234567", "+39", "+39061234567"},  // the zero belongs to the number
      {"701 234 5678", "+7", "+77012345678"},
      {"8 701 234 56 78", "+7", "+77012345678"},
      {"7 701 234 56 78", "+7", "+77012345678"},
      {"+49 0171 1234567", "+49", "+491711234567"},  // a zero that only callers inside the country dial
      {"44 (0)20 7946 0958", "+44", "+442079460958"},
      {"+39 (0)6 12345678", "+44", "+390612345678"},
      {"61412345678.0", "+61", "+61412345678"},
      {"(55) 99123-4567", "+55", "+5555991234567"},
      {"06 30 123 4567", "+36", "+36301234567"},
      {"620 1234", "+1868", "+18686201234"},
      {"011 44 20 7946 0958", "+1", "+442079460958"},
      {"0011 687 123456", "+61", "+687123456"},  // +1 has no numbers that begin with 1
      {"0011 44 20 7946 0958", "+61", "+442079460958"},
  };
  for (const auto& [written, code, number] : cases) EXPECT_EQ(read(written, code), number) << written;
}

TEST(PhoneNumber, removesDecorations) {
  for (const char* written : {"\u202A+49 171 1234567\u202C", "\u2068+49\u00A0171\u20091234567\u2069",
                              "\u200E'+49\u2011171\u20131234567", "tel:+49-171-1234567",
                              "TEL: 0049.171.1234567", "'0171/1234567", "(0171) 123\u221245\u201067",
                              "+49 (0)171 1234567", "+49 [171] 1234567", "\u2019 0171 123 45 67\u200F"})
    EXPECT_EQ(read(written, "+49"), "+491711234567") << written;
}

TEST(PhoneNumber, rejectsAmbiguousNumbers) {
  const Cases<const char*, const char*, Problem, const char*> cases = {
      {" - ", "+61", Problem::Empty, ""},
      {"+61 2 9876 5432 ext. 5", "+61", Problem::NotANumber, ""},
      {"030 123456/78", "+49", Problem::NotANumber, ""},
      {"04105 1234/1235", "+49", Problem::NotANumber, ""},
      {"+61412345678 / +61412345679", "", Problem::NotANumber, ""},
      {"6.1E+10", "+61", Problem::Rounded, "A spreadsheet program has rounded the number."},
      {"0412 345 678", "", Problem::NoCallingCode, "The number 0412345678 has no country code."},
      {"+999 1234567", "", Problem::UnknownCallingCode,
       "The country code of the number +9991234567 is not in use."},
      {"+61 4123 4567", "", Problem::WrongLength, "The number +6141234567 has a wrong length."},
      {"00447946", "+61", Problem::WrongLength, "The number 00447946 has a wrong length."},
      {"12345", "+61", Problem::NoReading, "The number 12345 is not valid in +61."},
      {"15 2345 6789", "+54", Problem::NoReading, nullptr},      // area code left out
      {"011 15 2345 6789", "+54", Problem::NoReading, nullptr},  // "15" marks a mobile phone
      {"045 55 1234 5678", "+52", Problem::NoReading, nullptr},
      {"021 11 98765 4321", "+55", Problem::NoReading, nullptr},  // with the code of a carrier
      {"49 171 1234567", "+49", Problem::Ambiguous,
       "The number 491711234567 can be +491711234567 or +49491711234567. Write it with a plus sign."},
      {"390612345", "+39", Problem::Ambiguous, nullptr},
      {"+39 (0)347 1234567", "", Problem::Ambiguous, nullptr},
  };
  for (const auto& [written, code, problem, text] : cases) {
    const PhoneNumber number = PhoneNumber::parse(QString::fromUtf8(written), QString::fromLatin1(code));
    EXPECT_EQ(number.problem(), problem) << written;
    if (text) {
      EXPECT_EQ(number.problemText().toStdString(), text) << written;
    }
  }
  // Countries open new ranges, so unknown leading digits are accepted after a country code.
  EXPECT_EQ(read("+61 612 345 678", ""), "+61612345678");
}

TEST(PhoneNumber, parsesCallingCodes) {
  for (const char16_t* typed : {u"61", u"+61", u"0061", u" + 61 "})
    EXPECT_EQ(PhoneNumber::parseCallingCode(typed), u"+61"_s);
  EXPECT_EQ(PhoneNumber::parseCallingCode(u""), QString());
  for (const char16_t* typed : {u"+", u"0", u"061", u"12345", u"au"})
    EXPECT_FALSE(PhoneNumber::parseCallingCode(typed).has_value());
  EXPECT_TRUE(PhoneNumber::isCallingCodeInUse(u"+1868"));
  EXPECT_FALSE(PhoneNumber::isCallingCodeInUse(u"+999"));
}

}  // namespace
}  // namespace parlexo::test
