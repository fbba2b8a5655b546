#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "formats/htr/reader.h"
#include "platform/module.h"
#include "plugin/export_htr/export_htr.h"
#include "tests/plugin/export_htr/sampling_fixture.h"
#include "tests/support/temporary_folder.h"

// An exporter of motion files with a scene, files and a user.
namespace orvane {

class ExportHTRTest : public test::SamplingTest {
 protected:
  void TearDown() override {
    SamplingTest::TearDown();
    EXPECT_TRUE(desk_.AllAnswered());
    EXPECT_FALSE(application_.progress().IsOpen());
  }

  // Hips at (1, 2, 3) and a leg that reaches on from them.
  void MakeSkeleton() {
    host::Node& hips = AddBone("Hips");
    host::Node& leg = AddBone("Leg", &hips);
    Place(hips, Point3(1, 2, 3));
    Place(leg, Point3(4, 0, 0));
    test::SetBoneLength(hips, 4);
    test::SetBoneLength(leg, 5);
    scene().Select(hips);
  }

  std::string Path() const { return folder_.File("walk.htr"); }
  int Export(int suppress_prompts = 1) {
    return exporter_.DoExport(Path().c_str(), nullptr, &interface(), suppress_prompts, 0);
  }
  int ExportWith(const test::Desk::DialogAnswer& user) {
    desk_.Expect(user);
    return Export(0);
  }

  // The file, read into document_.
  HtrDocument& Written() {
    EXPECT_EQ(ReadHtrFile(document_, Path(), true), "");
    return document_;
  }
  // The segment of that name in it; throws, and so fails the test, when there is none.
  HtrSegment& WrittenSegment(const std::string& name) {
    HtrSegment* const segment = Written().FindSegment(name);
    if (segment == nullptr) throw std::runtime_error("No segment is called " + name);
    return *segment;
  }
  bool IsWritten() const { return std::filesystem::exists(Path()); }

  // Whether both modes are as a finished export leaves them.
  bool ModesResumed() {
    return scene().Animation().AnimateMode().SuspendDepth() == 0 &&
           scene().Animation().SetKeyMode().SuspendDepth() == 0;
  }
  // Whether both are suspended once, as every other end leaves them.
  bool ModesSuspended() {
    return scene().Animation().AnimateMode().SuspendDepth() == 1 &&
           scene().Animation().SetKeyMode().SuspendDepth() == 1;
  }

  std::vector<int> Percentages() {
    std::vector<int> percentages;
    for (const host::ProgressEvent& event : application_.progress().Events()) {
      if (event.kind == host::ProgressEvent::Kind::kUpdate) percentages.push_back(event.percent);
    }
    return percentages;
  }

  test::TemporaryFolder folder_;
  ExportHTR exporter_{options_, sink_, platform::ModuleHandle()};
};

// Which zeros have a sign depends on the last digits of sines.
inline std::string WithoutSignedZeros(std::string text) {
  const std::string negative = "-0.000000";
  for (std::size_t at = text.find(negative); at != std::string::npos; at = text.find(negative)) {
    text.erase(at, 1);
  }
  return text;
}

}  // namespace orvane
