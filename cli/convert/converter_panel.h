#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/common/plugin_session.h"
#include "host/application/utility_panel.h"

// The plug-in's panel "Convert TRC to BVK", used by somebody who knows only the command line.

namespace cli {

// What is added to every position; the texts are typed as they are.
struct OffsetWish {
  std::string x;
  std::string y;
  std::string z;
  bool in_trc_space = true;
};

struct PanelWishes {
  std::string mapping;      // the mapping file to choose
  bool use_mapping = true;  // rename and drop markers by it
  std::optional<OffsetWish> offset;
};

class ConverterPanel {
 public:
  // Opens the panel in `session`, which outlives it and has no other user meanwhile, and sets its
  // controls. Throws a Failure when there is no such panel.
  ConverterPanel(PluginSession& session, const PanelWishes& wishes);
  ConverterPanel(const ConverterPanel&) = delete;
  ConverterPanel& operator=(const ConverterPanel&) = delete;
  ~ConverterPanel();

  // Each lets the plug-in convert files, which have absolute paths, and returns when it is done or
  // has given up. It tells about that by its messages and by what it has written. A user who
  // interrupts the program cancels.

  // The files `sources` of one folder, into the folder `target`.
  // REQUIRES: there are some.
  void ConvertBatch(const std::vector<std::string>& sources, const std::string& target);
  // The file `source` to the file `target`.
  void ConvertOne(const std::string& source, const std::string& target);

  // What the plug-in has told its user since the last time, in its own words.
  [[nodiscard]] std::vector<std::string> TakeMessages();

 private:
  host::FileChoice ChooseFiles(const host::ShownFileDialog& dialog) const;
  void SetControls(const PanelWishes& wishes);
  void SetOffset(const OffsetWish& offset);
  void SetCheckBox(int control, bool checked);
  void Click(int control);
  host::ScriptedDialog& Page();

  PluginSession& session_;
  std::unique_ptr<host::UtilityPanel> panel_;
  std::size_t messages_taken_ = 0;

  // What the user chooses when he is asked.
  std::string mapping_;
  std::vector<std::string> sources_;
  std::string target_file_;
  std::string target_folder_;
};

}  // namespace cli
