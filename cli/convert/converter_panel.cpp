#include "cli/convert/converter_panel.h"

#include <cassert>
#include <utility>

#include "cli/common/failure.h"
#include "cli/common/plugin_strings.h"
#include "cli/common/progress_watch.h"
#include "platform/interrupt.h"
#include "plugin/resources/resource.h"

namespace cli {
namespace {

int PressOk(const host::UserMessage&) { return platform::kMessageBoxOk; }

std::unique_ptr<UtilityObj> CreateUtility(const PluginSession& session) {
  std::unique_ptr<UtilityObj> utility = session.module().CreateUtility(PluginText(IDS_UTILITIES));
  if (utility != nullptr) return utility;
  throw Failure{ExitStatus::kInputOutput,
                {{session.module().path(), "the module has no panel that converts files", ""}}};
}

}  // namespace

ConverterPanel::ConverterPanel(PluginSession& session, const PanelWishes& wishes)
    : session_(session), mapping_(wishes.mapping) {
  host::ScriptedUser user;
  user.answer_message = PressOk;
  user.choose_files = [this](const host::ShownFileDialog& dialog) { return ChooseFiles(dialog); };
  user.choose_folder = [this](const std::string&) { return target_folder_; };
  session_.desktop().SetUser(std::move(user));
  session_.application().progress().SetObserver([this](const host::ProgressEvent& event) {
    TellProgress({event.title, event.percent, event.kind == host::ProgressEvent::Kind::kEnd});
    if (platform::Interrupted()) session_.application().cancellation().Request();
  });
  panel_ = std::make_unique<host::UtilityPanel>(CreateUtility(session_), session_.application());
  SetControls(wishes);
}

ConverterPanel::~ConverterPanel() {
  panel_.reset();
  session_.application().progress().SetObserver({});
}

void ConverterPanel::ConvertBatch(const std::vector<std::string>& sources,
                                  const std::string& target) {
  assert(!sources.empty());
  sources_ = sources;
  target_folder_ = target;
  SetCheckBox(IDC_BATCH, true);
  Click(IDC_BROWSE_OUTPUT);
  Click(IDC_CONVERT);
}

void ConverterPanel::ConvertOne(const std::string& source, const std::string& target) {
  sources_ = {source};
  target_file_ = target;
  SetCheckBox(IDC_BATCH, false);
  SetCheckBox(IDC_TRC_NAME, false);
  Click(IDC_CONVERT);
}

std::vector<std::string> ConverterPanel::TakeMessages() {
  const std::vector<std::string> all = session_.Messages();
  std::vector<std::string> messages(all.begin() + static_cast<std::ptrdiff_t>(messages_taken_),
                                    all.end());
  messages_taken_ = all.size();
  return messages;
}

// The dialogs are known by what they let choose.
host::FileChoice ConverterPanel::ChooseFiles(const host::ShownFileDialog& dialog) const {
  if (dialog.filter == PluginText(IDS_MNM_FILES)) return {{mapping_}, false};
  if (dialog.filter == PluginText(IDS_BVK_FILES)) return {{target_file_}, false};
  return {sources_, false};
}

void ConverterPanel::SetControls(const PanelWishes& wishes) {
  SetCheckBox(IDC_FILTER, wishes.use_mapping);
  Click(IDC_BROWSE_MAPPING);
  SetCheckBox(IDC_ENABLE_OFFSET, wishes.offset.has_value());
  if (wishes.offset) SetOffset(*wishes.offset);
}

void ConverterPanel::SetOffset(const OffsetWish& offset) {
  Click(offset.in_trc_space ? IDC_TRC_SPACE : IDC_SKELDER_SPACE);
  Page().Type(IDC_OFFSET_X, offset.x);
  Page().Type(IDC_OFFSET_Y, offset.y);
  Page().Type(IDC_OFFSET_Z, offset.z);
}

void ConverterPanel::SetCheckBox(int control, bool checked) {
  if (Page().IsChecked(control) != checked) Click(control);
}

void ConverterPanel::Click(int control) {
  Page().Click(control);
  session_.desktop().RethrowFailure();
}

host::ScriptedDialog& ConverterPanel::Page() {
  host::ScriptedDialog* const page = session_.desktop().ShownDialog(IDD_UTILITIES);
  if (page != nullptr) return *page;
  throw Failure{ExitStatus::kInputOutput,
                {{session_.module().path(), "the panel that converts files does not open", ""}}};
}

}  // namespace cli
