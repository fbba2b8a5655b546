// What the module answers by itself, whatever defaults the SDK of its host has.

#include <gtest/gtest.h>

#include <type_traits>

#include "plugin/export_htr/export_htr.h"
#include "plugin/import_htr/import_htr.h"
#include "plugin/import_trc/import_trc.h"
#include "plugin/module/class_descs.h"

namespace orvane {
namespace {

// Of an operation that `Class` inherits, the address is one in its base.
template <typename Class, typename Result, typename Owner, typename... Arguments>
constexpr bool IsOwn(Result (Owner::* /*operation*/)(Arguments...)) {
  return std::is_same_v<Owner, Class>;
}

TEST(OwnAnswersTest, DescriptorsTellWhetherAndHowInstancesAreMade) {
  EXPECT_TRUE(IsOwn<OrvaneClassDesc>(&OrvaneClassDesc::OkToCreate));
  EXPECT_TRUE(IsOwn<OrvaneClassDesc>(&OrvaneClassDesc::InitialRollupPageState));
  EXPECT_TRUE(IsOwn<OrvaneClassDesc>(&OrvaneClassDesc::InternalName));
  EXPECT_TRUE(IsOwn<OrvaneClassDesc>(&OrvaneClassDesc::HInstance));
  EXPECT_TRUE(IsOwn<FileClassDesc>(&FileClassDesc::GetRsrcString));
}

TEST(OwnAnswersTest, OnlyTheHostKnowsTheTextsOfAClassWithoutFiles) {
  EXPECT_FALSE(IsOwn<OrvaneClassDesc>(&OrvaneClassDesc::GetRsrcString));
}

TEST(OwnAnswersTest, ImportersTellThatTheyDoNotZoom) {
  EXPECT_TRUE(IsOwn<ImportHTR>(&ImportHTR::ZoomExtents));
  EXPECT_TRUE(IsOwn<ImportTRC>(&ImportTRC::ZoomExtents));
}

TEST(OwnAnswersTest, TheExporterTellsThatItHasNoOptionsOfTheHosts) {
  EXPECT_TRUE(IsOwn<ExportHTR>(&ExportHTR::SupportsOptions));
}

}  // namespace
}  // namespace orvane
