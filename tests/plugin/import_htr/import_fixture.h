#pragma once

#include <string>
#include <vector>

#include "platform/module.h"
#include "plugin/import_htr/import_htr.h"
#include "tests/plugin/import_htr/skeleton_fixture.h"
#include "tests/support/desk.h"
#include "tests/support/htr_text.h"
#include "tests/support/temporary_folder.h"

// An importer of motion files with a scene, files and a user.
namespace orvane {

// Two bones, three frames.
inline test::HtrText TwoBones() {
  test::HtrText file;
  file.segments = {
      {"Hips", "GLOBAL", "1 2 3 0 0 0 10", {"10 0 0 0 0 0", "20 0 0 0 0 0", "30 0 0 0 0 0"}},
      {"Leg", "Hips", "0 4 0 0 0 0 20", {"0 0 0 0 0 0", "0 1 0 0 0 0", "0 2 0 0 0 0"}}};
  return file;
}

class ImportHTRTest : public test::SkeletonTest {
 protected:
  void TearDown() override {
    SkeletonTest::TearDown();
    desk_.desktop().RethrowFailure();
    EXPECT_TRUE(desk_.AllAnswered());
    EXPECT_FALSE(application_.progress().IsOpen());
  }

  int Import(const std::string& path, int suppress_prompts = 1) {
    return importer_.DoImport(path.c_str(), nullptr, &interface(), suppress_prompts);
  }
  int Import(const test::HtrText& file) { return Import(folder_.Write("walk.htr", file.Text())); }
  int ImportWith(const test::Desk::DialogAnswer& user, const test::HtrText& file = TwoBones()) {
    desk_.Expect(user);
    return Import(folder_.Write("walk.htr", file.Text()), 0);
  }

  // Whether both modes are as a finished import leaves them.
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

  test::Desk desk_;
  test::TemporaryFolder folder_;
  MessageSink sink_;
  ImportHTR importer_{options_, sink_, platform::ModuleHandle()};
};

class ImportHTRApplyTest : public ImportHTRTest {
 protected:
  void SetUp() override { options_.apply = true; }
};

}  // namespace orvane
