#include "inspect/check/content_kind.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "inspect/check/mnm_check.h"
#include "tests/inspect/check/check_rows.h"
#include "tests/support/checked_bytes.h"
#include "tests/support/files.h"
#include "tests/support/saved_text.h"

namespace {

using orvane::ContentKind;
using orvane::FindContentKind;
using orvane::FindOtherKind;
using test::kMark;
using test::WithReturns;
using testing::ElementsAre;
using namespace std::string_literals;

struct Bytes {
  std::string bytes;
  std::optional<ContentKind> kind;
};

const Bytes kAll[] = {
    {"glTF\2\0\0\0{\"extensionsUsed\":[\"ORVANE_scene\"]}"s, ContentKind::kOrvaneScene},
    {"{\n\"asset\":{},\n\"extensionsUsed\":[\"ORVANE_scene\"]", ContentKind::kOrvaneScene},
    {"glTF\2\0\0\0{\"asset\":{}}"s, ContentKind::kGltf},
    {kMark + " {\"asset\": {}}"s, ContentKind::kGltf},
    {"{\"accessors\":[", ContentKind::kGltf},
    {"{\"scene\":[\"ORVANE_scene\"]", std::nullopt},
    {"$Comments\tBVK file", ContentKind::kBvk},
    {"\r\n$Filename   walk\r\n", ContentKind::kBvk},
    {"$Filenames\n", std::nullopt},
    {"HIERARCHY\nROOT Hips\n", ContentKind::kBvh},
    {"HIERARCHY \r\n  ROOT Hips\r\n", ContentKind::kBvh},
    {"HIERARCHY\tHips\n", std::nullopt},
    {"\x02\x50" + std::string(510, '\0'), ContentKind::kC3d},
    {"PPath\tx\n", std::nullopt},
    {"P", std::nullopt},
    {"\x1F\x8B\x08", ContentKind::kGzip},
    {"PK\x03\x04", ContentKind::kZip},
    {"PK\n", std::nullopt},
    {"# a walk\r\n[Header]\r\n", ContentKind::kHtr},
    {WithReturns("# a walk\n[BasePosition]\n"), ContentKind::kHtr},
    {"walk [Header]\n", std::nullopt},
    {"PathFileType\t4\t", ContentKind::kTrc},
    {kMark + "PathFileType,4,"s, ContentKind::kTrc},
    {"a\nb\n1\nFrame#\tTime\t", ContentKind::kTrc},
    {"PathFileTypes\n", std::nullopt},
    {"LFHD\tHat\n", ContentKind::kMnm},
    {"\r\nLFHD\twalker:LFHD\t\r\nC7 walker:C7\r\n", ContentKind::kMnm},
    {"LFHD\tHat\tCap\n", std::nullopt},
    {"LFHD\n", std::nullopt},
    {"LFHD\tHat\nHat\tLFHD\n", std::nullopt},
    {"", std::nullopt},
    {std::string(65'536, '\n') + "[Header]", std::nullopt},  // behind what is looked at
};

TEST(ContentKind, IsSeenInTheBytes) {
  for (const Bytes& each : kAll) {
    EXPECT_EQ(FindContentKind(each.bytes), each.kind) << testing::PrintToString(each.bytes);
  }
}

TEST(ContentKind, OfAFileThatMayBeWhatIsWantedIsNoOther) {
  const std::string both = "PathFileType\t4\n[Header]\n";
  EXPECT_EQ(FindOtherKind(both, ContentKind::kHtr), std::nullopt);
  EXPECT_EQ(FindOtherKind(both, ContentKind::kTrc), std::nullopt);
  EXPECT_EQ(FindOtherKind("[Header]\n", ContentKind::kTrc), ContentKind::kHtr);
  EXPECT_EQ(FindOtherKind("HIERARCHY\nROOT\n[Header]\n", ContentKind::kHtr), std::nullopt);
}

TEST(ContentKind, IsToldInWords) {
  EXPECT_EQ(DescribeOtherKind(ContentKind::kOrvaneScene, "an HTR file"),
            "The file is an orvane scene, not an HTR file");
  EXPECT_STREQ(WordsFor(ContentKind::kOrvaneScene).advice, "\"orvane scene\" shows it.");
  for (const auto& [kind, name] : {std::pair{ContentKind::kGltf, "a glTF file"},
                                   {ContentKind::kBvk, "a BVK file"},
                                   {ContentKind::kBvh, "a BVH file"},
                                   {ContentKind::kC3d, "a C3D file"},
                                   {ContentKind::kGzip, "a gzip archive"},
                                   {ContentKind::kZip, "a zip archive"},
                                   {ContentKind::kHtr, "an HTR file"},
                                   {ContentKind::kTrc, "a TRC file"}}) {
    EXPECT_STREQ(WordsFor(kind).name, name);
  }
}

std::string Example(const std::string& name) {
  return test::ReadFile(ORVANE_SOURCE_DIR "/examples/" + name);
}

TEST(ContentKind, IsTheOneFindingOfAFileOfAnother) {
  const std::string motion = Example("walk.htr");
  const std::string markers = Example("walk.trc");
  EXPECT_THAT(test::AllTold(test::CheckedHtr("walk", markers).findings),
              ElementsAre(test::Told{"1:1 error htr-other-kind", "a TRC file", "an HTR file",
                                     "\"orvane import\" and \"orvane info\" take it, by a name "
                                     "that ends in .trc or with \"--as trc\"."}));
  EXPECT_THAT(test::AllTold(test::CheckedTrc("walk", motion).findings),
              ElementsAre(test::Told{"1:1 error trc-other-kind", "an HTR file", "a TRC file",
                                     "\"orvane import\" and \"orvane info\" take it, by a name "
                                     "that ends in .htr or with \"--as htr\"."}));
  for (const auto& [bytes, kind] : {std::pair{motion, "an HTR file"},
                                    {markers, "a TRC file"},
                                    {Example("walk.bvk"), "a BVK file"}}) {
    EXPECT_THAT(
        test::AllTold(orvane::CheckMapping("walk", bytes).findings),
        ElementsAre(test::Told{"1:1 error mnm-other-kind", kind, "a mapping",
                               "No marker has its entry; \"orvane map create\" makes a mapping."}));
  }
}

TEST(ContentKind, OfSoundFilesIsWhatTheirNamesSay) {
  EXPECT_TRUE(test::CheckedHtr("walk", Example("walk.htr")).findings.IsEmpty());
  EXPECT_EQ(
      test::CheckedTrc("walk", Example("walk.trc")).findings.Count(orvane::FindingSeverity::kError),
      0U);
  EXPECT_EQ(FindContentKind(Example("walk.mnm")), ContentKind::kMnm);
}

}  // namespace
