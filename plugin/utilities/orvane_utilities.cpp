#include "plugin/utilities/orvane_utilities.h"

#include <cstddef>
#include <optional>
#include <string>

#include "platform/file_dialog.h"
#include "plugin/exchange/dialog_controls.h"
#include "plugin/resources/resource.h"
#include "plugin/text/numbers.h"
#include "plugin/utilities/convert_bvk.h"
#include "plugin/utilities/mapping_creator.h"
#include "plugin/utilities/mapping_file_dialog.h"
#include "sdk/skelderutil/custom_edit.h"

namespace orvane {
namespace {

constexpr int kRollupCategory = 4000;

// The longest path of any system fits.
constexpr std::size_t kPathBufferSize = std::size_t{64} * 1024;

// The host's custom edit control with that number, held as long as this object.
class HeldEdit {
 public:
  HeldEdit(platform::Dialog& dialog, int control)
      : edit_(GetICustEdit(dialog.ControlWindow(control))) {}
  HeldEdit(const HeldEdit&) = delete;
  HeldEdit& operator=(const HeldEdit&) = delete;
  ~HeldEdit() {
    if (edit_ != nullptr) ReleaseICustEdit(edit_);
  }

  void Show(float number) {
    if (edit_ != nullptr) edit_->SetText(FormatDouble(static_cast<double>(number)).c_str());
  }

  // Takes over the number in the control; leaves `number` as it is when there is none.
  void Read(float& number) {
    bool valid = false;
    const float read = edit_ == nullptr ? 0.0F : edit_->GetFloat(&valid);
    if (valid) number = read;
  }

 private:
  ICustEdit* edit_;
};

const char* Shown(const std::string& path) { return path.empty() ? "<none>" : path.c_str(); }

void EnableOffset(platform::Dialog& dialog, bool enabled) {
  EnableControls(dialog,
                 {IDC_TRC_SPACE, IDC_SKELDER_SPACE, IDC_OFFSET_X, IDC_OFFSET_Y, IDC_OFFSET_Z},
                 enabled);
}

std::optional<std::string> ChooseOutputFolder(HWND owner) {
  std::string buffer(kPathBufferSize, '\0');
  if (!platform::ChooseFolder(owner, "Choose BVK Files Destination Folder...", buffer.data(),
                              buffer.size())) {
    return std::nullopt;
  }
  return buffer.c_str();
}

}  // namespace

// What a command works on. The command shares it with the panel, because the host may close or
// delete the panel while the command waits for the user.
struct OrvaneUtilities::Work {
  Work(MessageSink& messages, StringTable& strings, HINSTANCE module)
      : converter(messages, strings, module) {}

  ConvertBVK converter;
  MappingCreator* creator = nullptr;  // the one that is at work
  bool busy = false;                  // a conversion or a creator is at work
  bool shown = false;                 // the panel is open
};

// Marks the time of a command, during which no other one is taken up.
class OrvaneUtilities::WorkInProgress {
 public:
  // `creator` is the one that is at work, or null. Both outlive this object.
  WorkInProgress(Work& work, MappingCreator* creator) : work_(work) {
    work_.busy = true;
    work_.creator = creator;
  }
  WorkInProgress(const WorkInProgress&) = delete;
  WorkInProgress& operator=(const WorkInProgress&) = delete;
  ~WorkInProgress() {
    work_.busy = false;
    work_.creator = nullptr;
  }

 private:
  Work& work_;
};

OrvaneUtilities::OrvaneUtilities(MessageSink& messages, StringTable& strings, PickControlNode& pick,
                                 HINSTANCE module)
    : messages_(messages),
      strings_(strings),
      pick_(pick),
      module_(module),
      work_(std::make_shared<Work>(messages, strings, module)) {}

OrvaneUtilities::~OrvaneUtilities() { Close(); }

void OrvaneUtilities::BeginEditParams(Interface* interface, IUtil* utility) {
  interface_ = interface;
  utility_ = utility;
  work_->shown = true;
  if (page_ != nullptr) return;
  page_ = interface->AddRollupPage(module_, IDD_UTILITIES, platform::HandlerProcedure(),
                                   strings_.GetString(module_, IDS_CONVERT_TRC_TO_BVK),
                                   platform::HandlerParameter(*this), 0, kRollupCategory);
}

void OrvaneUtilities::EndEditParams(Interface* /*interface*/, IUtil* /*utility*/) { Close(); }

void OrvaneUtilities::Close() {
  if (interface_ == nullptr) return;
  interface_->ClearPickMode();
  if (work_->creator != nullptr) work_->creator->End();
  work_->converter.SaveSettings();
  work_->shown = false;
  if (page_ != nullptr) interface_->DeleteRollupPage(page_);
  page_ = nullptr;
  interface_ = nullptr;
  utility_ = nullptr;
}

void OrvaneUtilities::Initialize(platform::Dialog& dialog) {
  try {
    const ConvertBVK& settings = work_->converter;
    dialog.SetText(IDC_MAPPING_FILE, Shown(settings.mnmPath));
    dialog.SetText(IDC_OUTPUT_FOLDER, Shown(settings.outputPath));
    dialog.SetChecked(IDC_FILTER, settings.filter);
    dialog.SetChecked(IDC_BATCH, settings.batch);
    dialog.SetChecked(IDC_TRC_NAME, settings.trcName);
    ShowBatch(dialog);
    FillOffset(dialog);
  } catch (...) {
    // Without memory the panel stays as it is.
  }
}

void OrvaneUtilities::Command(platform::Dialog& dialog, int control) {
  try {
    Answer(dialog, control);
  } catch (...) {
    // Without memory the command is not carried out.
  }
}

void OrvaneUtilities::FillOffset(platform::Dialog& dialog) {
  const ConvertBVK& settings = work_->converter;
  ShowChoice(dialog, settings.trcSpace, IDC_TRC_SPACE, IDC_SKELDER_SPACE);
  dialog.SetChecked(IDC_ENABLE_OFFSET, settings.offset);
  EnableOffset(dialog, settings.offset);
  HeldEdit(dialog, IDC_OFFSET_X).Show(settings.offsetX);
  HeldEdit(dialog, IDC_OFFSET_Y).Show(settings.offsetY);
  HeldEdit(dialog, IDC_OFFSET_Z).Show(settings.offsetZ);
}

// Files of a batch are always named after their inputs.
void OrvaneUtilities::ShowBatch(platform::Dialog& dialog) {
  ConvertBVK& settings = work_->converter;
  if (settings.batch) {
    settings.trcName = true;
    dialog.SetChecked(IDC_TRC_NAME, true);
  }
  dialog.SetEnabled(IDC_TRC_NAME, !settings.batch);
}

void OrvaneUtilities::Answer(platform::Dialog& dialog, int control) {
  ConvertBVK& settings = work_->converter;
  switch (control) {
    case IDC_FILTER:
      settings.filter = dialog.IsChecked(IDC_FILTER);
      return;
    case IDC_BATCH:
      settings.batch = dialog.IsChecked(IDC_BATCH);
      return ShowBatch(dialog);
    case IDC_TRC_NAME:
      settings.trcName = dialog.IsChecked(IDC_TRC_NAME);
      return;
    case IDC_ENABLE_OFFSET:
      settings.offset = dialog.IsChecked(IDC_ENABLE_OFFSET);
      return EnableOffset(dialog, settings.offset);
    case IDC_TRC_SPACE:
      settings.trcSpace = true;
      return SelectRadio(dialog, IDC_TRC_SPACE, IDC_SKELDER_SPACE);
    case IDC_SKELDER_SPACE:
      settings.trcSpace = false;
      return SelectRadio(dialog, IDC_SKELDER_SPACE, IDC_TRC_SPACE);
    case IDC_BROWSE_MAPPING:
      return BrowseMapping(dialog);
    case IDC_BROWSE_OUTPUT:
      return BrowseOutput(dialog);
    case IDC_CREATE_MAPPING:
      return CreateMapping(dialog);
    case IDC_CONVERT:
      return Convert(dialog);
    default:
      return;
  }
}

// While the user chooses, the panel may be closed and this object deleted. Then nothing was chosen.
void OrvaneUtilities::BrowseMapping(platform::Dialog& dialog) {
  const std::shared_ptr<Work> work = work_;
  platform::FileDialog file_dialog;
  file_dialog.owner = interface_->GetSkelderHWnd();
  file_dialog.file_must_exist = true;
  const std::optional<std::string> path = ChooseMappingFile(file_dialog, strings_, module_);
  if (!path || !work->shown) return;
  work->converter.mnmPath = *path;
  dialog.SetText(IDC_MAPPING_FILE, Shown(*path));
}

// As BrowseMapping.
void OrvaneUtilities::BrowseOutput(platform::Dialog& dialog) {
  const std::shared_ptr<Work> work = work_;
  const std::optional<std::string> folder = ChooseOutputFolder(interface_->GetSkelderHWnd());
  if (!folder || !work->shown) return;
  work->converter.outputPath = *folder;
  dialog.SetText(IDC_OUTPUT_FOLDER, Shown(*folder));
}

// While the creator waits, the panel may be closed and this object deleted. Then nothing was
// created, and nothing of this object or of the page is touched.
void OrvaneUtilities::CreateMapping(platform::Dialog& dialog) {
  const std::shared_ptr<Work> work = work_;
  if (work->busy) return;
  MappingCreator creator(work->converter, {messages_, strings_, pick_, module_});
  const WorkInProgress in_progress(*work, &creator);
  if (creator.CreateMNM(interface_)) {
    dialog.SetText(IDC_MAPPING_FILE, Shown(work->converter.mnmPath));
  }
}

void OrvaneUtilities::Convert(platform::Dialog& dialog) {
  const std::shared_ptr<Work> work = work_;
  if (work->busy) return;
  ConvertBVK& converter = work->converter;
  if (converter.offset) {
    HeldEdit(dialog, IDC_OFFSET_X).Read(converter.offsetX);
    HeldEdit(dialog, IDC_OFFSET_Y).Read(converter.offsetY);
    HeldEdit(dialog, IDC_OFFSET_Z).Read(converter.offsetZ);
  }
  const WorkInProgress in_progress(*work, nullptr);
  converter.Convert(interface_);
}

}  // namespace orvane
