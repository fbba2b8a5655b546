#include "formats/pose/hierarchy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

HtrSegment& Add(HtrDocument& document, const std::string& name) {
  return *document.AddSegment(HtrSegment(name));
}

HtrSegment& AddRoot(HtrDocument& document, const std::string& name) {
  HtrSegment& segment = Add(document, name);
  segment.SetIsRoot(true);
  return segment;
}

HtrSegment& AddBelow(HtrSegment& parent, HtrDocument& document, const std::string& name) {
  HtrSegment& segment = Add(document, name);
  segment.SetParent(&parent);
  return segment;
}

std::vector<std::string> Listed(const HtrDocument& document) {
  std::vector<std::string> names;
  for (const HierarchyEntry& entry : ListHierarchy(document)) {
    names.push_back(std::string(entry.depth, ' ') + entry.segment->GetName());
  }
  return names;
}

std::vector<std::string> Unattached(const HtrDocument& document) {
  std::vector<std::string> names;
  for (const HtrSegment* segment : ListUnattached(document, ListHierarchy(document))) {
    names.push_back(segment->GetName());
  }
  return names;
}

TEST(ListHierarchy, GoesDepthFirstFromEachRootInTheDocumentsOrder) {
  HtrDocument document;
  HtrSegment& hips = AddRoot(document, "Hips");
  HtrSegment& spine = AddBelow(hips, document, "Spine");
  AddBelow(hips, document, "Leg");
  AddBelow(spine, document, "Head");
  AddRoot(document, "Prop");
  EXPECT_THAT(Listed(document), ElementsAre("Hips", " Spine", "  Head", " Leg", "Prop"));
  EXPECT_THAT(Unattached(document), IsEmpty());
}

TEST(ListHierarchy, HasASegmentOnceThatIsListedTwice) {
  HtrDocument document;
  HtrSegment& hips = AddRoot(document, "Hips");
  HtrSegment& spine = AddBelow(hips, document, "Spine");
  AddBelow(hips, document, "Leg");
  spine.SetParent(&hips);
  EXPECT_THAT(Listed(document), ElementsAre("Hips", " Spine", " Leg"));
}

TEST(ListHierarchy, EndsWhereARootHangsFromItsOwnBranch) {
  HtrDocument document;
  HtrSegment& hips = AddRoot(document, "Hips");
  HtrSegment& spine = AddBelow(hips, document, "Spine");
  hips.SetParent(&spine);
  EXPECT_THAT(Listed(document), ElementsAre("Hips", " Spine"));
}

TEST(ListHierarchy, TakesSegmentsThatHangFromItsOwnAndBelongToNobody) {
  HtrDocument document;
  HtrSegment& hips = AddRoot(document, "Hips");
  HtrSegment loose("Loose");
  loose.SetParent(&hips);
  loose.SetParent(&hips);
  EXPECT_THAT(Listed(document), ElementsAre("Hips", " Loose"));
}

TEST(ListUnattached, HasWhatHangsFromNoRootInTheDocumentsOrder) {
  HtrDocument document;
  HtrSegment& first = Add(document, "First");
  AddRoot(document, "Hips");
  HtrSegment& second = AddBelow(first, document, "Second");
  first.SetParent(&second);
  Add(document, "Alone");
  EXPECT_THAT(Listed(document), ElementsAre("Hips"));
  EXPECT_THAT(Unattached(document), ElementsAre("First", "Second", "Alone"));
}

}  // namespace
}  // namespace orvane
