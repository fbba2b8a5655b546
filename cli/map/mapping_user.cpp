#include "cli/map/mapping_user.h"

#include <memory>
#include <optional>
#include <utility>

#include "cli/common/failure.h"
#include "cli/common/known_messages.h"
#include "cli/common/plugin_strings.h"
#include "host/application/utility_panel.h"
#include "platform/interrupt.h"
#include "plugin/resources/resource.h"

namespace cli {
namespace {

host::ScriptedDialog& Shown(PluginSession& session, int dialog_id) {
  host::ScriptedDialog* const dialog = session.desktop().ShownDialog(dialog_id);
  if (dialog != nullptr) return *dialog;
  throw Failure{ExitStatus::kInputOutput,
                {{session.module().path(), "the panel that makes mappings does not open", ""}}};
}

}  // namespace

void MappingUser::Create(const std::string& path) {
  host::ScriptedUser user;
  user.answer_message = [this](const host::UserMessage& message) { return Answer(message); };
  user.choose_files = [&path](const host::ShownFileDialog&) { return host::FileChoice{{path}}; };
  user.act = [this] {
    Act();
    return true;
  };
  session_.desktop().SetUser(std::move(user));
  std::unique_ptr<UtilityObj> utility = session_.module().CreateUtility(PluginText(IDS_UTILITIES));
  if (utility == nullptr) {
    throw Failure{ExitStatus::kInputOutput,
                  {{session_.module().path(), "the module has no panel that makes mappings", ""}}};
  }
  host::UtilityPanel panel(std::move(utility), session_.application());
  Shown(session_, IDD_UTILITIES).Click(IDC_CREATE_MAPPING);
  session_.desktop().RethrowFailure();
}

int MappingUser::Answer(const host::UserMessage& message) const {
  if (message.style == platform::MessageBoxStyle::kOk) return platform::kMessageBoxOk;
  const bool is_left = Recognize(message.text) == KnownMessage::kAsksForLeftStick;
  const bool answer = is_left ? sticks_.left : sticks_.right;
  return answer ? platform::kMessageBoxYes : platform::kMessageBoxNo;
}

// Does what the table says about the marker that is asked for.
void MappingUser::Act() {
  host::ScriptedDialog& creator = Shown(session_, IDD_MAPPING_CREATOR);
  if (platform::Interrupted()) return creator.Click(IDC_ABORT);
  const std::string name(orvane::StandardNameOf(creator.Text(IDC_MARKER_DESCRIPTION)));
  const std::optional<std::string> pick = picks_.PickFor(name);
  if (!pick) return creator.Click(IDC_SKIP);
  host::Node* const node = session_.scene().FindByName(*pick);
  if (node == nullptr || !session_.application().picking().Click(node)) {
    throw Failure{ExitStatus::kRefused, {{*pick, "the plug-in does not let it be picked", ""}}};
  }
}

}  // namespace cli
