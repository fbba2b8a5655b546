// What importers and exporters tell the host about themselves, and the about box.

#include <gtest/gtest.h>

#include "plugin/resources/resource.h"
#include "tests/module/module_fixture.h"

namespace test {
namespace {

constexpr int kOk = IDC_OK;

// The operations that SceneImport and SceneExport have in common, asked of either.
template <typename Plugin>
void ExpectAnswers(Plugin& plugin, const std::string& extension, const std::string& long_text,
                   const std::string& short_text) {
  EXPECT_EQ(plugin.ExtCount(), 1);
  for (const int n : {0, 1, 5, -1}) EXPECT_EQ(plugin.Ext(n), extension) << n;
  EXPECT_EQ(plugin.LongDesc(), long_text);
  EXPECT_EQ(plugin.ShortDesc(), short_text);
  EXPECT_STREQ(plugin.AuthorName(), "Orvane Corporation");
  EXPECT_STREQ(plugin.CopyrightMessage(), "Copyright (c) 2026 The OrvaneFileIO authors");
  EXPECT_STREQ(plugin.OtherMessage1(), "");
  EXPECT_STREQ(plugin.OtherMessage2(), "");
  EXPECT_EQ(plugin.Version(), 300U);
}

class FileClassesTest : public ModuleTest {
 protected:
  template <typename Plugin>
  std::unique_ptr<Plugin> Create(int index) {
    return std::unique_ptr<Plugin>(
        static_cast<Plugin*>(module_->ClassDescriptor(index)->Create(false)));
  }

  // Shows the about box of `plugin` and closes it.
  template <typename Plugin>
  void ExpectAboutBox(Plugin& plugin) {
    bool shown = false;
    desk_.Expect([&shown](host::ScriptedDialog& dialog) {
      shown = dialog.Title() == "About...";
      dialog.Click(kOk);
    });
    plugin.ShowAbout(application_.main_window());
    EXPECT_TRUE(shown);
  }
};

TEST_F(FileClassesTest, ImportHTRAnswersForItself) {
  const auto plugin = Create<SceneImport>(0);
  ExpectAnswers(*plugin, "HTR", "Orvane HTR Skeletal Animation File", "Orvane HTR File");
  EXPECT_EQ(plugin->ZoomExtents(), -1);
  ExpectAboutBox(*plugin);
}

TEST_F(FileClassesTest, ExportHTRAnswersForItself) {
  const auto plugin = Create<SceneExport>(1);
  ExpectAnswers(*plugin, "HTR", "Orvane HTR Skeletal Animation File", "Orvane HTR File");
  EXPECT_EQ(plugin->SupportsOptions(0, 1), 0);
  ExpectAboutBox(*plugin);
}

TEST_F(FileClassesTest, ImportTRCAnswersForItself) {
  const auto plugin = Create<SceneImport>(2);
  ExpectAnswers(*plugin, "TRC", "Orvane TRC Optical Marker Tracking File", "Orvane TRC File");
  EXPECT_EQ(plugin->ZoomExtents(), -1);
  ExpectAboutBox(*plugin);
}

}  // namespace
}  // namespace test
