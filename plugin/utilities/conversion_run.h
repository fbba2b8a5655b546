#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_dialog.h"
#include "platform/handles.h"
#include "plugin/services/message_sink.h"
#include "plugin/services/string_table.h"
#include "plugin/utilities/batch_log.h"
#include "plugin/utilities/convert_bvk.h"

// One conversion, from the user's choice of files to the last of them.
namespace orvane {

class ConversionRun {
 public:
  // All of it outlives the run.
  ConversionRun(ConvertBVK& converter, MessageSink& messages, StringTable& strings,
                HINSTANCE module)
      : converter_(converter),
        messages_(messages),
        strings_(strings),
        module_(module),
        host_(converter.interface) {}

  // As ConvertBVK::Convert, with its host.
  bool Run() noexcept;

  // As ConvertBVK::End, which forgets the host then.
  void End() noexcept;

 private:
  // Of one file. After a refusal no other file follows, but the run is not abandoned.
  enum class Outcome { kDone, kRefused, kAbandoned };

  bool Work();
  bool ChooseSources();
  bool OpenLog();
  bool OpenBar();
  bool ConvertFiles();
  bool UserGoesOn();
  Outcome ConvertFile(const std::string& source);
  bool ReadSource(const std::string& source);
  void ApplyMapping();
  std::optional<std::string> OutputFor(const std::string& source);
  std::optional<std::string> ChooseOutput();
  std::string InOutputFolder(const std::string& name) const;
  bool ShowFileDialog(platform::FileDialog& dialog, unsigned filter_name, std::string& buffer,
                      std::size_t& name_offset);
  bool ShowPercent(int percent);
  void EndProgress();

  ConvertBVK& converter_;
  MessageSink& messages_;
  StringTable& strings_;
  HINSTANCE module_;

  // Null once the run has been ended, which may happen in the middle of any call of the host and
  // while a dialog is shown.
  Interface* host_;
  bool bar_is_open_ = false;

  std::vector<std::string> sources_;
  std::optional<BatchLog> log_;  // of a batch
};

}  // namespace orvane
