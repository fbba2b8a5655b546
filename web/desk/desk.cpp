#include "web/desk/desk.h"

#include <algorithm>
#include <iterator>

#include "cli/common/plugin_session.h"
#include "plugin/resources/resource.h"
#include "web/desk/page.h"
#include "web/desk/told.h"

namespace web {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPause{50};

bool HasRange(int dialog_id) {
  return dialog_id == IDD_IMPORT_HTR || dialog_id == IDD_IMPORT_TRC || dialog_id == IDD_EXPORT_HTR;
}

void Refuse(const std::string& did, const std::string& words) {
  Telling telling("refused");
  cli::WriteText(telling.Json(), "did", did);
  cli::WriteText(telling.Json(), "words", words);
  telling.Send();
}

}  // namespace

const Desk::KnownDeed Desk::kDeeds[] = {{"command", When::kWaiting, &Desk::Use},
                                        {"text", When::kWaiting, &Desk::Type},
                                        {"answer", When::kWaiting, &Desk::Answer},
                                        {"chosen", When::kWaiting, &Desk::Choose},
                                        {"pick", When::kWaiting, &Desk::Pick},
                                        {"right-click", When::kWaiting, &Desk::RightClick},
                                        {"select", When::kUnheld, &Desk::Select},
                                        {"time", When::kUnheld, &Desk::SetTime},
                                        {"open-panel", When::kAtTop, &Desk::OpenPanel},
                                        {"close-panel", When::kWaiting, &Desk::ClosePanel},
                                        {"ask-lint", When::kAlways, &Desk::AskLint},
                                        {"cancel", When::kAlways, &Desk::Cancel},
                                        {"import", When::kAtTop, &Desk::Import},
                                        {"export", When::kAtTop, &Desk::Export},
                                        {"about", When::kAtTop, &Desk::ShowAbout},
                                        {"open-scene", When::kAtTop, &Desk::OpenScene},
                                        {"new-scene", When::kAtTop, &Desk::NewScene},
                                        {"save-scene", When::kAtTop, &Desk::SaveScene},
                                        {"store-settings", When::kAtTop, &Desk::StoreSettings}};

Desk::Desk() { NewApplication(); }

Desk::~Desk() = default;

void Desk::NewApplication() {
  told_mapping_.Watch(nullptr);
  panel_.reset();
  module_.reset();
  application_.reset();
  application_ = std::make_unique<host::Application>();
  application_->progress().SetObserver(
      [this](const host::ProgressEvent& progress) { Watch(progress); });
  std::string refusal;
  module_ = host::Module::Load(cli::DefaultModulePath(), {*application_}, refusal);
  told_scene_.TakeOver(application_->scene());
}

void Desk::Run() {
  TellWholeScene();
  for (;;) {
    desktop_.ForgetEnded();
    // A conversion that was cancelled leaves its bar open.
    if (application_->progress().IsOpen()) application_->progress().End();
    TellChanges();
    told_settings_.Update(SettingsOfModule());
    Telling("idle").Send();
    is_told_idle_ = true;
    now_ = When::kAtTop;
    Act(true);
  }
}

// A plug-in that goes on by itself looks for messages far more often than a page has to.
void Desk::Act(bool awaited) {
  const bool is_soon = Clock::now() - last_glance_ < kPause;
  if (!awaited && is_soon && !IsAnythingPutOff()) return;
  const When now = std::exchange(now_, When::kWaiting);
  if (now != When::kAtTop) TellBusy();
  TypeRange();
  TellChanges();
  const std::optional<PersonEvent> event = NextDeed(awaited);
  if (event) Take(*event, now);
}

bool Desk::IsAnythingPutOff() const {
  return !put_off_.empty() || (!held_.empty() && desktop_.WhyHeld().empty());
}

std::optional<PersonEvent> Desk::NextDeed(bool awaited) {
  const bool is_held = !desktop_.WhyHeld().empty();
  std::deque<PersonEvent>& first = is_held || held_.empty() ? put_off_ : held_;
  if (!first.empty()) {
    PersonEvent event = std::move(first.front());
    first.pop_front();
    return event;
  }
  const std::optional<std::string> words = NextEvent(awaited);
  last_glance_ = Clock::now();
  if (!words) return std::nullopt;
  return ParseEvent(*words).value_or(PersonEvent());
}

// As a person would who knows which frames he wants.
void Desk::TypeRange() {
  if (!range_ || desktop_.Dialogs().empty()) return;
  const host::LiveDialog& dialog = *desktop_.Dialogs().back();
  if (!HasRange(dialog.id)) return;
  const auto [from, to] = *std::exchange(range_, std::nullopt);
  if (!desktop_.Use(dialog.number, IDC_RANGE).empty()) return;
  if (!desktop_.Type(dialog.number, IDC_FROM, std::to_string(from)).empty()) return;
  if (!desktop_.Type(dialog.number, IDC_TO, std::to_string(to)).empty()) return;
}

void Desk::TellChanges() {
  told_desktop_.Update(desktop_, application_->rollup_pages());
  told_scene_.Update(*application_);
  told_mapping_.Update(desktop_);
  if (importing_) importing_->Look(desktop_);
  told_losses_.Update(desktop_, SettingsOfModule(), application_->scene(), reading_);
}

// What was done is still under way, and lets the person act meanwhile.
void Desk::TellBusy() {
  if (std::exchange(is_told_idle_, false)) Telling("busy").Send();
}

const Desk::KnownDeed* Desk::FindDeed(const std::string& did) {
  const auto known = std::find_if(std::begin(kDeeds), std::end(kDeeds),
                                  [&did](const auto& each) { return did == each.did; });
  return known == std::end(kDeeds) ? nullptr : known;
}

void Desk::Take(const PersonEvent& event, When now) {
  const KnownDeed* const known = FindDeed(event.did);
  if (known == nullptr) return Refuse(event.did, "Nobody can do that");
  if (known->when == When::kUnheld && !desktop_.WhyHeld().empty()) return held_.push_back(event);
  std::string refusal;
  if (known->when == When::kAtTop && now != When::kAtTop) {
    refusal = desktop_.WhyHeld();
    if (refusal.empty()) refusal = "The plug-in is at work";
  } else {
    refusal = (this->*known->deed)(event);
  }
  if (!refusal.empty()) Refuse(event.did, refusal);
}

// What is done soon shows no progress.
void Desk::Watch(const host::ProgressEvent& progress) {
  using Kind = host::ProgressEvent::Kind;
  if (progress.kind == Kind::kStart) last_glance_ = Clock::now();
  if (progress.kind == Kind::kEnd) return Telling("progress-gone").Send();
  if (Clock::now() - last_glance_ < kPause) return;
  TellBusy();
  told_desktop_.Update(desktop_, application_->rollup_pages());
  Telling telling("progress");
  cli::WriteText(telling.Json(), "what", progress.title);
  cli::WriteInteger(telling.Json(), "percent", progress.percent);
  telling.Send();
  Glance();
  last_glance_ = Clock::now();
}

void Desk::Glance() {
  while (const std::optional<std::string> words = NextEvent(false)) {
    PersonEvent event = ParseEvent(*words).value_or(PersonEvent());
    const KnownDeed* const known = FindDeed(event.did);
    const bool is_asked = known != nullptr && known->when == When::kAlways;
    if (is_asked) {
      Take(event, When::kAlways);
    } else {
      put_off_.push_back(std::move(event));
    }
  }
}

}  // namespace web
