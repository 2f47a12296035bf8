#include "base/number.h"

#include <gtest/gtest.h>

namespace kickwell {
namespace {

TEST(ToNumber, TakesDigitsAndNothingElse) {
  EXPECT_EQ(ToNumber("80"), 80);
  EXPECT_EQ(ToNumber("-7"), -7);
  EXPECT_EQ(ToNumber("007"), 7);
  for (const char* text : {"", "abc", "+5", " 7", "7 ", "1.5", "1e3", "--1", "99999999999999", "\xD9\xA3"}) {
    EXPECT_EQ(ToNumber(text), 0) << text;
  }
}

}  // namespace
}  // namespace kickwell
