#include "plugin/utilities/orvane_utilities.h"

#include <optional>
#include <string>
#include <utility>

#include "formats/text/numbers.h"
#include "platform/file_dialog.h"
#include "plugin/exchange/attempt.h"
#include "plugin/exchange/dialog_controls.h"
#include "plugin/exchange/failure_report.h"
#include "plugin/resources/resource.h"
#include "plugin/utilities/convert_bvk.h"
#include "plugin/utilities/file_dialogs.h"
#include "plugin/utilities/mapping_creator.h"
#include "sdk/skelderutil/custom_edit.h"

namespace orvane {
namespace {

constexpr int kRollupCategory = 4000;

constexpr FailureTexts kFailure{"OrvaneUtilities Error",
                                "There is not enough memory for this command.",
                                "An unexpected error ended this command."};

// The host's custom edit control with that number, held as long as this object.
class HeldEdit {
 public:
  HeldEdit(platform::Dialog& dialog, int control)
      : edit_(GetICustEdit(dialog.ControlWindow(control))) {}
  HeldEdit(const HeldEdit&) = delete;
  HeldEdit& operator=(const HeldEdit&) = delete;
  ~HeldEdit() {
    if (edit_ != nullptr) Attempt([this] { ReleaseICustEdit(edit_); });
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

// A control of the offset, and the setting that it shows.
struct OffsetEdit {
  int control;
  float ConvertBVK::*number;
};
constexpr OffsetEdit kOffsetEdits[] = {{IDC_OFFSET_X, &ConvertBVK::offsetX},
                                       {IDC_OFFSET_Y, &ConvertBVK::offsetY},
                                       {IDC_OFFSET_Z, &ConvertBVK::offsetZ}};

const char* Shown(const std::string& path) { return path.empty() ? "<none>" : path.c_str(); }

void EnableOffset(platform::Dialog& dialog, bool enabled) {
  EnableControls(dialog,
                 {IDC_TRC_SPACE, IDC_SKELDER_SPACE, IDC_OFFSET_X, IDC_OFFSET_Y, IDC_OFFSET_Z},
                 enabled);
}

}  // namespace

// What commands work with. A command shares it with the panel, because the host may close or delete
// the panel in the middle of any call that the command makes, and while a dialog is shown.
struct OrvaneUtilities::Work {
  Work(MessageSink& its_messages, StringTable& its_strings, HINSTANCE its_module)
      : messages(its_messages),
        strings(its_strings),
        module(its_module),
        converter(messages, strings, module) {}

  MessageSink& messages;
  StringTable& strings;
  HINSTANCE module;
  ConvertBVK converter;
  PanelCommand* command = nullptr;  // the one that is at work
  unsigned closings = 0;            // how often the panel was closed
};

// Tells a command whether the panel that it was started from is still there.
class OrvaneUtilities::OpenPanel {
 public:
  explicit OpenPanel(const Work& work) : work_(work), closings_(work.closings) {}

  bool IsOpen() const { return work_.closings == closings_; }

 private:
  const Work& work_;
  unsigned closings_;
};

// Marks the work as begun, as long as it lives.
class OrvaneUtilities::WorkInProgress {
 public:
  WorkInProgress(Work& work, PanelCommand& command) : work_(work) { work_.command = &command; }
  WorkInProgress(const WorkInProgress&) = delete;
  WorkInProgress& operator=(const WorkInProgress&) = delete;
  ~WorkInProgress() { work_.command = nullptr; }

 private:
  Work& work_;
};

OrvaneUtilities::OrvaneUtilities(MessageSink& messages, StringTable& strings, PickControlNode& pick,
                                 HINSTANCE module)
    : pick_(pick), work_(std::make_shared<Work>(messages, strings, module)) {}

OrvaneUtilities::~OrvaneUtilities() { Close(); }

// As a command, this works on when the panel is closed, or deleted, in the middle of it.
void OrvaneUtilities::BeginEditParams(Interface* interface, IUtil* utility) {
  if (interface == nullptr) return;
  interface_ = interface;
  utility_ = utility;
  if (page_ != nullptr) return;
  const std::shared_ptr<Work> work = work_;
  const OpenPanel panel(*work);
  try {
    HWND const page =
        interface->AddRollupPage(work->module, IDD_UTILITIES, platform::HandlerProcedure(),
                                 work->strings.GetString(work->module, IDS_CONVERT_TRC_TO_BVK),
                                 platform::HandlerParameter(*this), 0, kRollupCategory);
    if (panel.IsOpen()) {
      page_ = page;
    } else if (page != nullptr) {
      interface->DeleteRollupPage(page);
    }
  } catch (...) {
    if (!panel.IsOpen()) return;
    interface_ = nullptr;
    utility_ = nullptr;
  }
}

void OrvaneUtilities::EndEditParams(Interface* /*interface*/, IUtil* /*utility*/) { Close(); }

const MarkerNameMap& OrvaneUtilities::Mapping() const { return work_->converter.mapping; }

// The pointers are forgotten first: the host may close the panel, or delete it, once more in the
// middle of any of these calls.
void OrvaneUtilities::Close() noexcept {
  Interface* const interface = std::exchange(interface_, nullptr);
  if (interface == nullptr) return;
  utility_ = nullptr;
  const HWND page = std::exchange(page_, nullptr);
  const std::shared_ptr<Work> work = work_;
  ++work->closings;
  Attempt([interface] { interface->ClearPickMode(); });
  if (work->command != nullptr) work->command->End();
  work->converter.SaveSettings();
  if (page != nullptr) Attempt([interface, page] { interface->DeleteRollupPage(page); });
}

// As BeginEditParams.
void OrvaneUtilities::Initialize(platform::Dialog& dialog) {
  const std::shared_ptr<Work> work = work_;
  try {
    const ConvertBVK& settings = work->converter;
    dialog.SetText(IDC_MAPPING_FILE, Shown(settings.mnmPath));
    dialog.SetText(IDC_OUTPUT_FOLDER, Shown(settings.outputPath));
    dialog.SetChecked(IDC_FILTER, settings.filter);
    dialog.SetChecked(IDC_BATCH, settings.batch);
    dialog.SetChecked(IDC_TRC_NAME, settings.trcName);
    ShowBatch(dialog);
    FillOffset(dialog, *work);
  } catch (...) {
    // Without memory the panel stays as it is.
  }
}

// The panel may be closed and this object deleted before the command ends; what the command works
// with stays until then.
void OrvaneUtilities::Command(platform::Dialog& dialog, int control) {
  if (interface_ == nullptr) return;  // the page is being deleted
  const std::shared_ptr<Work> work = work_;
  const OpenPanel panel(*work);
  const char* const failure = FailureOf([&] { Answer(dialog, control); }, kFailure);
  if (failure != nullptr && panel.IsOpen()) work->messages.Report(failure, kFailure.title);
}

void OrvaneUtilities::FillOffset(platform::Dialog& dialog, const Work& work) {
  const OpenPanel panel(work);
  const ConvertBVK& settings = work.converter;
  ShowChoice(dialog, settings.trcSpace, IDC_TRC_SPACE, IDC_SKELDER_SPACE);
  dialog.SetChecked(IDC_ENABLE_OFFSET, settings.offset);
  EnableOffset(dialog, settings.offset);
  for (const OffsetEdit& edit : kOffsetEdits) {
    if (panel.IsOpen()) HeldEdit(dialog, edit.control).Show(settings.*edit.number);
  }
}

void OrvaneUtilities::ReadOffset(platform::Dialog& dialog, Work& work) {
  const OpenPanel panel(work);
  for (const OffsetEdit& edit : kOffsetEdits) {
    if (panel.IsOpen()) HeldEdit(dialog, edit.control).Read(work.converter.*edit.number);
  }
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
  Work& work = *work_;
  const OpenPanel panel(work);
  platform::FileDialog file_dialog;
  file_dialog.owner = interface_->GetSkelderHWnd();
  file_dialog.file_must_exist = true;
  if (!panel.IsOpen()) return;
  const std::optional<std::string> path = ChooseMappingFile(file_dialog, work.strings, work.module);
  if (!path || !panel.IsOpen()) return;
  work.converter.mnmPath = *path;
  dialog.SetText(IDC_MAPPING_FILE, Shown(*path));
}

// As BrowseMapping.
void OrvaneUtilities::BrowseOutput(platform::Dialog& dialog) {
  Work& work = *work_;
  const OpenPanel panel(work);
  const HWND owner = interface_->GetSkelderHWnd();
  if (!panel.IsOpen()) return;
  const std::optional<std::string> folder = ChooseOutputFolder(owner);
  if (!folder || !panel.IsOpen()) return;
  work.converter.outputPath = *folder;
  dialog.SetText(IDC_OUTPUT_FOLDER, Shown(*folder));
}

// While the creator waits, the panel may be closed and this object deleted. Then nothing was
// created, and nothing of this object or of the page is touched.
void OrvaneUtilities::CreateMapping(platform::Dialog& dialog) {
  Work& work = *work_;
  if (work.command != nullptr) return;
  MappingCreator creator(work.converter, {work.messages, work.strings, pick_, work.module});
  const WorkInProgress in_progress(work, creator);
  if (creator.CreateMNM(interface_)) {
    dialog.SetText(IDC_MAPPING_FILE, Shown(work.converter.mnmPath));
  }
}

// As CreateMapping.
void OrvaneUtilities::Convert(platform::Dialog& dialog) {
  Work& work = *work_;
  if (work.command != nullptr) return;
  const OpenPanel panel(work);
  ConvertBVK& converter = work.converter;
  if (converter.offset) ReadOffset(dialog, work);
  if (!panel.IsOpen()) return;
  const WorkInProgress in_progress(work, converter);
  converter.Convert(interface_);
}

}  // namespace orvane
