#include "plugin/utilities/conversion_run.h"

#include <utility>

#include "platform/local_time.h"
#include "plugin/exchange/attempt.h"
#include "plugin/exchange/failure_report.h"
#include "plugin/resources/resource.h"
#include "plugin/utilities/file_dialogs.h"
#include "plugin/utilities/marker_file.h"
#include "sdk/skelderutil/filename.h"

namespace orvane {
namespace {

constexpr char kConvertBVKError[] = "ConvertBVK Error";
constexpr FailureTexts kFailure{kConvertBVKError, "There is not enough memory to convert the file.",
                                "An unexpected error ended the conversion."};
constexpr char kProgressTitle[] = "Orvane ConvertBVK";
constexpr char kLogName[] = "ConvertBVKLog.txt";

// Room for a thousand long names.
constexpr std::size_t kBufferSize = 260'000;

// What "trc" at the end of a path becomes.
constexpr std::string_view kBvkLetters = "bvk";

std::uint32_t GoOn(void* /*argument*/) { return 0; }

// Intended: the share that was done before file `index` began, in single precision.
int PercentBefore(std::size_t index, std::size_t count) {
  return static_cast<int>(static_cast<float>(index) / static_cast<float>(count) * 100.0F);
}

std::string FileNamePart(const std::string& path) {
  CStr name;
  SplitFilename(path.c_str(), nullptr, &name, nullptr);
  return name.data();
}

// Intended: the last three characters change, whatever they are, so that "walk.trc" becomes
// "walk.bvk" and "walking" becomes "walkbvk". Nothing when there are fewer.
std::optional<std::string> WithBvkLetters(std::string path) {
  if (path.size() < kBvkLetters.size()) return std::nullopt;
  path.replace(path.size() - kBvkLetters.size(), kBvkLetters.size(), kBvkLetters);
  return path;
}

}  // namespace

// What was read goes first: there may be no memory to tell of its want.
bool ConversionRun::Run() noexcept {
  bool is_done = false;
  const char* const failure = FailureOf([&] { is_done = Work(); }, kFailure);
  if (failure == nullptr || host_ == nullptr) return is_done;
  Attempt([this] { parts_.document.Reset(); });
  End();
  parts_.messages.Report(failure, kFailure.title);
  return false;
}

// Intended: a mapping file is needed even when the mapping is not used, and its absence is not
// reported.
bool ConversionRun::Work() {
  if (!parts_.mapping.Load(parts_.settings.mnmPath)) return false;
  if (!ChooseSources()) return false;
  if (parts_.settings.batch && !OpenLog()) return false;
  return OpenBar() && ConvertFiles();
}

void ConversionRun::End() noexcept {
  Interface* const host = std::exchange(host_, nullptr);
  if (host != nullptr && std::exchange(bar_is_open_, false)) {
    Attempt([host] { host->ProgressEnd(); });
  }
}

bool ConversionRun::ChooseSources() {
  platform::FileDialog dialog;
  dialog.kind = platform::FileDialog::Kind::kOpen;
  dialog.title = "Select Source TRC Files...";
  dialog.filter_pattern = "*.trc";
  dialog.default_extension = "trc";
  const std::string folder = parts_.settings.inputPath;
  dialog.initial_folder = folder.c_str();
  dialog.several = parts_.settings.batch;
  dialog.file_must_exist = true;
  dialog.folder_must_exist = true;
  std::string buffer(kBufferSize, '\0');
  std::size_t name_offset = 0;
  if (!ShowFileDialog(dialog, IDS_TRC_FILES, buffer, name_offset)) return false;
  if (!dialog.several) {
    sources_ = {buffer.substr(0, buffer.find('\0'))};
    return true;
  }
  FilesInFolder chosen = ReadChosenFiles(buffer, name_offset, platform::PathSeparator());
  parts_.settings.inputPath = chosen.folder;
  sources_ = std::move(chosen.paths);
  return true;
}

bool ConversionRun::OpenLog() {
  log_.emplace();
  if (!log_->Open(InOutputFolder(kLogName))) {
    parts_.messages.Report("Cannot Open Batch Log File.", kConvertBVKError);
    return false;
  }
  log_->WriteHeader(platform::LocalTimeText(), sources_.size());
  return true;
}

// Returns false when the run was ended meanwhile.
bool ConversionRun::OpenBar() {
  Enter(bar_is_open_, [this] { host_->ProgressStart(kProgressTitle, true, &GoOn, nullptr); });
  return ShowPercent(0);
}

// Intended: a user who cancels finds the progress bar still open.
bool ConversionRun::ConvertFiles() {
  for (std::size_t index = 0; index < sources_.size(); ++index) {
    if (!UserGoesOn()) return false;
    const Outcome outcome = ConvertFile(sources_[index]);
    if (outcome != Outcome::kDone) EndProgress();
    if (outcome == Outcome::kAbandoned) return false;
    // Intended: the progress bar ends a second time below.
    if (outcome == Outcome::kRefused) break;
    parts_.document.Reset();
    if (!ShowPercent(PercentBefore(index, sources_.size()))) return false;
  }
  EndProgress();
  return true;
}

// Whether the user neither cancels nor ends the run, which he may do here.
bool ConversionRun::UserGoesOn() {
  host_->ProcessPendingMessages();
  return host_ != nullptr && !host_->GetCancel() && host_ != nullptr;
}

// Intended: in a batch, what was read of a file that the reader refused is written all the same.
ConversionRun::Outcome ConversionRun::ConvertFile(const std::string& source) {
  if (!ReadSource(source)) return Outcome::kRefused;
  if (parts_.settings.filter) ApplyMapping();
  const std::optional<std::string> output = OutputFor(source);
  const bool is_written = output && WriteMarkerFile(*output, parts_.document, parts_.settings);
  if (!is_written) return Outcome::kAbandoned;
  if (log_) log_->WriteDone(source);
  return Outcome::kDone;
}

bool ConversionRun::ReadSource(const std::string& source) {
  const std::string message = parts_.document.Read(source, false);
  if (message.empty()) return true;
  const std::string report = source + ": " + message + "\n";
  if (log_) {
    log_->WriteFormat(report);
  } else {
    parts_.messages.Report(report.c_str(), kConvertBVKError);
  }
  return log_.has_value();
}

void ConversionRun::ApplyMapping() {
  for (TRCMarker& marker : parts_.document.markers()) {
    std::string name = marker.Name();
    const bool is_known = parts_.mapping.Lookup(name);
    if (is_known) marker.SetName(name);
    marker.SetEnabled(is_known);
  }
}

// Nothing when the user cancels, or when there is no such name.
std::optional<std::string> ConversionRun::OutputFor(const std::string& source) {
  if (!parts_.settings.trcName) return ChooseOutput();
  if (!log_) return WithBvkLetters(source);
  return InOutputFolder(FileNamePart(source) + ".bvk");
}

std::optional<std::string> ConversionRun::ChooseOutput() {
  platform::FileDialog dialog;
  dialog.kind = platform::FileDialog::Kind::kSave;
  dialog.title = "Select Target BVK File...";
  dialog.filter_pattern = "*.bvk";
  dialog.default_extension = "bvk";
  const std::string folder = parts_.settings.outputPath;
  dialog.initial_folder = folder.c_str();
  dialog.ask_before_replacing = true;
  std::string buffer(kBufferSize, '\0');
  std::size_t name_offset = 0;
  if (!ShowFileDialog(dialog, IDS_BVK_FILES, buffer, name_offset)) return std::nullopt;
  return buffer.c_str();
}

std::string ConversionRun::InOutputFolder(const std::string& name) const {
  return parts_.settings.outputPath + platform::PathSeparator() + name;
}

// Shows `dialog`, to which what all dialogs of a conversion have in common is added. A choice that
// the end of the run has overtaken is none.
bool ConversionRun::ShowFileDialog(platform::FileDialog& dialog, unsigned filter_name,
                                   std::string& buffer, std::size_t& name_offset) {
  const char* const text = parts_.strings.GetString(parts_.module, filter_name);
  const std::string filter = text == nullptr ? "" : text;
  dialog.owner = host_->GetSkelderHWnd();
  if (host_ == nullptr) return false;
  dialog.filter_name = filter.c_str();
  dialog.hide_read_only_box = true;
  return platform::ChooseFiles(dialog, buffer.data(), buffer.size(), name_offset) &&
         host_ != nullptr;
}

// Returns false when the run was ended before or meanwhile.
bool ConversionRun::ShowPercent(int percent) {
  if (host_ != nullptr) host_->ProgressUpdate(percent);
  return host_ != nullptr;
}

void ConversionRun::EndProgress() {
  if (!ShowPercent(100)) return;
  bar_is_open_ = false;
  host_->ProgressEnd();
}

}  // namespace orvane
