#include <filesystem>
#include <system_error>

#include "cli/common/plugin_strings.h"
#include "cli/common/scene_input.h"
#include "cli/import/scene_output.h"
#include "plugin/resources/resource.h"
#include "plugin/utilities/orvane_utilities.h"
#include "web/desk/desk.h"
#include "web/desk/told.h"
#include "web/desk/told_suggestions.h"

// What the person can do.

namespace web {
namespace {

constexpr const char* kNoNode = "The scene has no such node";

std::string WordsOf(const cli::Failure& failure) {
  return failure.complaints.empty() ? "It cannot be done" : failure.complaints.front().text;
}

void TellDone(const std::string& task, bool completed) {
  Telling telling("done");
  cli::WriteText(telling.Json(), "task", task);
  WriteBool(telling.Json(), "completed", completed);
  telling.Send();
}

}  // namespace

std::string Desk::Finish(const PersonEvent& event, const std::optional<host::FileResult>& result) {
  range_.reset();
  if (!result) return "The plug-in has nobody for files of this kind";
  TellDone(event.did, result->completed);
  return "";
}

// Of a file that did not come to the desk its person knows.
std::string Desk::Import(const PersonEvent& event) {
  if (!std::filesystem::exists(event.path)) return Finish(event, host::FileResult());
  range_ = event.range;
  importing_.emplace(event.path, application_->scene(), SettingsOfModule());
  const std::optional<host::FileResult> result = module_->Import(event.path, false);
  if (result && result->completed) importing_->Finish();
  if (importing_->IsAgreed()) TellWholeScene();
  importing_.reset();
  return Finish(event, result);
}

std::string Desk::Export(const PersonEvent& event) {
  range_ = event.range;
  return Finish(event, module_->Export(event.path, false));
}

std::string Desk::ShowAbout(const PersonEvent& event) {
  const std::unique_ptr<SceneImport> importer = module_->CreateImporter("htr");
  if (importer == nullptr) return "The plug-in tells nothing about itself";
  importer->ShowAbout(application_->main_window());
  TellDone(event.did, true);
  return "";
}

// What cannot be read leaves the scene as it is.
std::string Desk::OpenScene(const PersonEvent& event) {
  try {
    host::Scene tried;
    static_cast<void>(cli::ReadSceneOrSkins(event.path, {}, tried));
    StartScene();
    reading_ = cli::ReadSceneOrSkins(event.path, {}, application_->scene());
  } catch (const cli::Failure& failure) {
    return WordsOf(failure);
  }
  TellWholeScene();
  TellDone(event.did, true);
  return "";
}

std::string Desk::NewScene(const PersonEvent& event) {
  StartScene();
  TellWholeScene();
  TellDone(event.did, true);
  return "";
}

std::string Desk::SaveScene(const PersonEvent& event) {
  try {
    static_cast<void>(
        cli::SceneOutput(event.path, true).Deliver(application_->scene(), event.path));
  } catch (const cli::Failure& failure) {
    return WordsOf(failure);
  }
  TellDone(event.did, true);
  return "";
}

std::string Desk::OpenPanel(const PersonEvent& /*event*/) {
  if (is_panel_open_) return "The panel is open";
  if (panel_ != nullptr) {
    is_panel_open_ = true;
    panel_->Open();
    return "";
  }
  std::unique_ptr<UtilityObj> utility = module_->CreateUtility(cli::PluginText(IDS_UTILITIES));
  if (utility == nullptr) return "The plug-in has no panel";
  const auto* const utilities = dynamic_cast<const orvane::OrvaneUtilities*>(utility.get());
  if (utilities != nullptr) told_mapping_.Watch(&utilities->Mapping());
  is_panel_open_ = true;
  panel_ = std::make_unique<host::UtilityPanel>(std::move(utility), *application_);
  return "";
}

std::string Desk::ClosePanel(const PersonEvent& /*event*/) {
  if (!is_panel_open_) return "The panel is not open";
  std::string held = desktop_.WhyHeld();
  if (!held.empty()) return held;
  is_panel_open_ = false;
  panel_->Close();
  return "";
}

std::string Desk::Use(const PersonEvent& event) {
  std::string refusal = desktop_.Use(event.number, event.control);
  const bool agrees = importing_ && event.control == IDC_OK && desktop_.WhyHeld().empty();
  if (agrees && refusal.empty()) importing_->Agree();
  return refusal;
}

std::string Desk::Type(const PersonEvent& event) {
  told_desktop_.TakeTyped(event.number, event.control, event.text);
  return desktop_.Type(event.number, event.control, event.text);
}

std::string Desk::Answer(const PersonEvent& event) {
  if (event.text == "yes") return desktop_.Answer(event.number, platform::kMessageBoxYes);
  if (event.text == "no") return desktop_.Answer(event.number, platform::kMessageBoxNo);
  return desktop_.Answer(event.number, platform::kMessageBoxOk);
}

// Files count from the desk's own folder, and a folder is made when there is none: a person who
// chooses one in a browser chooses a name.
std::string Desk::Choose(const PersonEvent& event) {
  std::vector<std::string> paths;
  std::error_code ignored;
  for (const std::string& path : event.paths) {
    paths.push_back(std::filesystem::absolute(path, ignored).string());
  }
  const host::LiveChoice* const choice = desktop_.Choice();
  if (choice != nullptr && choice->files == nullptr && !paths.empty()) {
    std::filesystem::create_directories(paths[0], ignored);
  }
  return desktop_.Choose(event.number, paths);
}

std::string Desk::Pick(const PersonEvent& event) {
  std::string held = desktop_.WhyHeld();
  if (!held.empty()) return held;
  if (!application_->picking().IsActive()) return "Nothing is to be picked";
  if (event.standard != ToldMapping::Asked(desktop_)) return "Another marker is asked for by now";
  host::Node* const node = application_->scene().FindByHandle(event.node);
  if (!application_->picking().Click(node)) return "There is nothing that can be picked";
  return "";
}

std::string Desk::RightClick(const PersonEvent& /*event*/) {
  std::string held = desktop_.WhyHeld();
  if (!held.empty()) return held;
  application_->picking().RightClick();
  return "";
}

std::string Desk::Select(const PersonEvent& event) {
  told_scene_.TakeSelect(event.number);
  host::Scene& scene = application_->scene();
  for (const std::uint32_t handle : event.nodes) {
    const host::Node* const node = scene.FindByHandle(handle);
    if (node == nullptr || node->IsRoot()) return kNoNode;
  }
  scene.ClearSelection();
  for (const std::uint32_t handle : event.nodes) scene.Select(*scene.FindByHandle(handle));
  return "";
}

std::string Desk::SetTime(const PersonEvent& event) {
  host::AnimationState& animation = application_->scene().Animation();
  animation.SetTime(event.frame * animation.TicksPerFrame());
  return "";
}

std::string Desk::Cancel(const PersonEvent& /*event*/) {
  if (!application_->progress().IsOpen()) return "Nothing is shown that could be cancelled";
  application_->cancellation().Request();
  return "";
}

std::string Desk::AskLint(const PersonEvent& /*event*/) {
  told_mapping_.TellLint();
  return "";
}

std::string Desk::StoreSettings(const PersonEvent& event) {
  Store(event.values, SettingsOfModule());
  return "";
}

// The panel that was open is open again.
void Desk::StartScene() {
  NewApplication();
  reading_ = {};
  Telling("scene-gone").Send();
  if (std::exchange(is_panel_open_, false)) static_cast<void>(OpenPanel({}));
}

void Desk::TellWholeScene() {
  const host::Scene& scene = application_->scene();
  const ScenePlaces places(scene);
  TellScene(scene, places);
  told_scene_.TakeOver(scene);
  TellSuggestions(scene, places);
}

}  // namespace web
