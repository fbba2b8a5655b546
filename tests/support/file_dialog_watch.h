#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tests/support/forwarding_desktop.h"

namespace test {

// What a plug-in asked of a file dialog. The texts are copies; those of `dialog` are gone.
struct AskedFileDialog {
  platform::FileDialog dialog;
  std::string title;
  std::string filter;
  std::string pattern;
  std::string extension;
  std::string folder;
};

// Notes what file dialogs are asked for; the desktop in use before answers them.
class FileDialogWatch final : public ForwardingDesktop {
 public:
  bool ChooseFiles(const platform::FileDialog& dialog, char* buffer, std::size_t size,
                   std::size_t& name_offset) override {
    shown.push_back({dialog, dialog.title, dialog.filter_name, dialog.filter_pattern,
                     dialog.default_extension, dialog.initial_folder});
    return ForwardingDesktop::ChooseFiles(dialog, buffer, size, name_offset);
  }

  std::vector<AskedFileDialog> shown;
};

}  // namespace test
