#include <gtest/gtest.h>

#include "tests/host/gltf/expect.h"
#include "tests/host/gltf/sample_scenes.h"
#include "tests/host/gltf/viewer.h"

namespace test {
namespace {

// The order of nodes in a file: each before its children.
void AppendTree(const host::Node& parent, std::vector<const host::Node*>& nodes) {
  for (const host::Node* child : parent.Children()) {
    nodes.push_back(child);
    AppendTree(*child, nodes);
  }
}

class GltfSample : public testing::TestWithParam<SampleScene> {};

TEST_P(GltfSample, HasEveryNodeThatWasMeasuredWhereTheHostHasIt) {
  host::Scene scene;
  GetParam().build(scene);
  std::vector<const host::Node*> nodes;
  AppendTree(scene.Root(), nodes);

  const Viewer viewer(Written(scene));
  ASSERT_GE(viewer.File().nodes.size(), nodes.size());
  const TimeValue time = scene.Animation().Time();
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (nodes[i]->Measurement() && nodes[i]->Measurement()->IsMissing(time)) continue;
    ExpectSameTransform(viewer.WorldAtRest(i), nodes[i]->WorldTransform(time),
                        scene.MillimetersPerUnit(), 1e-5);
  }
}

INSTANTIATE_TEST_SUITE_P(Of, GltfSample, testing::ValuesIn(SampleScenes()),
                         [](const auto& sample) { return sample.param.name; });

}  // namespace
}  // namespace test
