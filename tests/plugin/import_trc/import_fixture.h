#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "host/application/application.h"
#include "platform/module.h"
#include "plugin/import_trc/import_trc.h"
#include "tests/support/desk.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trc_text.h"

// An importer of marker files with a scene, files and a user.
namespace orvane {

// Two markers, three frames; the second marker drops out once.
inline test::TrcText TwoMarkers() {
  return {.markers = {"LFHD", "RFHD"},
          .frames = {{"1\t2\t3", "10\t20\t30"}, {"4\t5\t6", ""}, {"7\t8\t9", "40\t50\t60"}}};
}

class ImportTRCTest : public testing::Test {
 protected:
  void TearDown() override {
    EXPECT_EQ(scene().Misuse().Messages(), std::vector<std::string>());
    EXPECT_EQ(scene().LooseInstances(), 0u);
    desk_.desktop().RethrowFailure();
    EXPECT_TRUE(desk_.AllAnswered());
    EXPECT_FALSE(application_.progress().IsOpen());
  }

  // Every import answers 1, whatever happens.
  void ImportFrom(const std::string& path, int suppress_prompts = 1) {
    EXPECT_EQ(importer_.DoImport(path.c_str(), nullptr, &interface(), suppress_prompts), 1);
  }
  void Import(const test::TrcText& file) { ImportFrom(folder_.Write("walk.trc", file.Text())); }
  void ImportWith(const test::Desk::DialogAnswer& user, const test::TrcText& file = TwoMarkers()) {
    desk_.Expect(user);
    ImportFrom(folder_.Write("walk.trc", file.Text()), 0);
  }
  void ImportThrough(::Interface& other, const test::TrcText& file = TwoMarkers()) {
    const std::string path = folder_.Write("walk.trc", file.Text());
    EXPECT_EQ(importer_.DoImport(path.c_str(), nullptr, &other, 1), 1);
  }

  host::Node& AddNode(const std::string& name, host::Node* parent = nullptr) {
    auto* object = static_cast<Object*>(scene().CreateInstance(kHelperSuperClass, kDummyClass));
    host::Node* node = scene().CreateNode(object);
    node->SetName(name.c_str());
    if (parent != nullptr) parent->AttachChild(node, false);
    return *node;
  }

  host::Node* Find(const std::string& name) { return scene().FindByName(name); }
  // The same; throws, and so fails the test, when there is none.
  host::Node& Node(const std::string& name) {
    host::Node* const node = Find(name);
    if (node == nullptr) throw std::runtime_error("No node is called " + name);
    return *node;
  }
  const host::PositionController& Positions(const std::string& name) {
    return Node(name).Transform()->Position();
  }
  std::vector<TimeValue> KeyTicks(const std::string& name) {
    std::vector<TimeValue> ticks;
    const host::PositionController& positions = Positions(name);
    for (std::size_t key = 0; key < positions.KeyCount(); ++key) {
      ticks.push_back(positions.KeyTick(key));
    }
    return ticks;
  }
  std::vector<Point3> KeyValues(const std::string& name) {
    std::vector<Point3> values;
    const host::PositionController& positions = Positions(name);
    for (std::size_t key = 0; key < positions.KeyCount(); ++key) {
      values.push_back(positions.KeyValue(key));
    }
    return values;
  }
  std::string ChildNames(const host::Node& node) {
    std::string names;
    for (const host::Node* child : node.Children()) {
      names += (names.empty() ? "" : " ") + child->Name();
    }
    return names;
  }
  std::string SceneNames() { return ChildNames(scene().Root()); }

  // How many suspensions of animate mode and of set-key mode are left.
  std::pair<std::size_t, std::size_t> Suspensions() {
    return {scene().Animation().AnimateMode().SuspendDepth(),
            scene().Animation().SetKeyMode().SuspendDepth()};
  }
  std::vector<int> Percentages() {
    std::vector<int> percentages;
    for (const host::ProgressEvent& event : application_.progress().Events()) {
      if (event.kind == host::ProgressEvent::Kind::kUpdate) percentages.push_back(event.percent);
    }
    return percentages;
  }

  host::Scene& scene() { return application_.scene(); }
  ::Interface& interface() { return application_.plugin_interface(); }

  host::Application application_;
  test::Desk desk_;
  test::TemporaryFolder folder_;
  MessageSink sink_;
  ImportTRCOptions options_;
  ImportTRC importer_{options_, sink_, platform::ModuleHandle()};
};

class ImportTRCApplyTest : public ImportTRCTest {
 protected:
  void SetUp() override { options_.apply = true; }
};

}  // namespace orvane
