#include "host/desktop/number_text.h"

#include <gtest/gtest.h>

namespace host {
namespace {

TEST(NumberTextTest, ReadsATextThatIsANumberAndNothingElse) {
  const struct {
    const char* text;
    std::optional<float> number;
  } cases[] = {
      {"1.5", 1.5F},
      {"-0.25", -0.25F},
      {"+2", 2.0F},
      {" 3.000000 ", 3.0F},
      {"1e3", 1000.0F},
      {"", std::nullopt},
      {" ", std::nullopt},
      {"x", std::nullopt},
      {"1.5 mm", std::nullopt},
      {"1,5", std::nullopt},
      {"+-2", std::nullopt},
      {"nan", std::nullopt},
      {"inf", std::nullopt},
      {"1e99", std::nullopt},
      {"-inf", std::nullopt},
      {"1e-60", std::nullopt},
      {"1e-45", 1e-45F},
      {"0e99", 0.0F},
      {"-0", 0.0F},
      {"++2", std::nullopt},
  };
  for (const auto& c : cases) EXPECT_EQ(NumberIn(c.text), c.number) << c.text;
}

}  // namespace
}  // namespace host
