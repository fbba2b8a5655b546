#include "inspect/check/similar_words.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using orvane::LooksLike;
using orvane::MostSimilar;

TEST(SimilarWords, DifferInCaseOrByTwoLetters) {
  EXPECT_TRUE(LooksLike("EndOFFile", "EndOfFile"));
  EXPECT_TRUE(LooksLike("numframes", "NumFrames"));
  EXPECT_TRUE(LooksLike("NumFrame", "NumFrames"));
  EXPECT_TRUE(LooksLike("NummFrrames", "NumFrames"));
  EXPECT_TRUE(LooksLike("NumFarmes", "NumFrames"));
  EXPECT_FALSE(LooksLike("NmFrms", "NumFrames"));
  EXPECT_FALSE(LooksLike("Hips", "NumFrames"));
}

TEST(SimilarWords, AreNotTheSameWord) { EXPECT_FALSE(LooksLike("Header", "Header")); }

TEST(SimilarWords, DifferInCaseAloneWhenShort) {
  EXPECT_TRUE(LooksLike("hips", "Hips"));
  EXPECT_FALSE(LooksLike("lips", "Hips"));
}

TEST(SimilarWords, OrInTwoLettersThatChangedPlaces) {
  EXPECT_TRUE(LooksLike("hrt", "htr"));
  EXPECT_TRUE(LooksLike("HIPS", "Hpis"));
  EXPECT_TRUE(LooksLike("cmo", "com"));
  EXPECT_FALSE(LooksLike("th", "ht")) << "too short";
  EXPECT_FALSE(LooksLike("rht", "htr")) << "all three";
  EXPECT_FALSE(LooksLike("M21", "M12")) << "another number";
  EXPECT_FALSE(LooksLike("htrr", "htr"));
}

TEST(SimilarWords, AreNotLong) {
  const std::string longest(40, 'a');
  EXPECT_TRUE(LooksLike(longest.substr(1), longest));
  EXPECT_FALSE(LooksLike(longest, longest + 'a'));
  EXPECT_FALSE(LooksLike("", ""));
}

TEST(SimilarWords, OfSeveralTheOneWithTheFewestWrongLettersIsMeant) {
  const std::vector<std::string> verbs = {"import", "export", "convert", "compare"};
  EXPECT_EQ(MostSimilar("imprt", verbs), "import");
  EXPECT_EQ(MostSimilar("xport", verbs), "export");
  EXPECT_EQ(MostSimilar("Convert", verbs), "convert");
  EXPECT_EQ(MostSimilar("list", verbs), "");
  EXPECT_EQ(MostSimilar("", verbs), "");
}

TEST(SimilarWords, SwappedLettersAreOneMistake) {
  EXPECT_EQ(MostSimilar("--rnage", {"--name", "--range"}), "--range");
  EXPECT_EQ(MostSimilar("--RNAGE", {"--name", "--range"}), "--range");
  EXPECT_TRUE(LooksLike("unmFrmaes", "NumFrames"));
  EXPECT_FALSE(LooksLike("unmFrmase", "NumFrames"));
}

TEST(SimilarWords, ABeginningStandsForTheFirstWordThatHasIt) {
  const std::vector<std::string> flags = {"--output", "--output-dir", "--offset"};
  EXPECT_EQ(MostSimilar("--out", flags), "--output");
  EXPECT_EQ(MostSimilar("--output-", flags), "--output");
  EXPECT_EQ(MostSimilar("--o", flags), "");
}

TEST(SimilarWords, MarkersOfAnotherSubjectAreMeantBeforeOthers) {
  const std::vector<std::string> markers = {"walker:LFWT", "walker:LFHD", "RANK"};
  EXPECT_EQ(MostSimilar("LFHD", markers), "walker:LFHD");
  EXPECT_EQ(MostSimilar("lfhd", markers), "walker:LFHD");
  EXPECT_EQ(MostSimilar("runner:LFHD", markers), "walker:LFHD");
  EXPECT_EQ(MostSimilar("walker:RANK", markers), "RANK");
  EXPECT_EQ(MostSimilar("HD", markers), "");
  EXPECT_EQ(MostSimilar("walker:", {"runner:"}), "");
}

TEST(SimilarWords, TheWordItselfIsNotMeant) { EXPECT_EQ(MostSimilar("import", {"import"}), ""); }

}  // namespace
