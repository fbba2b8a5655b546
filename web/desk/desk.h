#pragma once

#include <chrono>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "host/application/application.h"
#include "host/application/module.h"
#include "host/application/utility_panel.h"
#include "host/desktop/portable/live_desktop.h"
#include "host/gltf/reader.h"
#include "web/desk/person_event.h"
#include "web/desk/told_desktop.h"
#include "web/desk/told_losses.h"
#include "web/desk/told_mapping.h"
#include "web/desk/told_scene.h"
#include "web/desk/told_settings.h"
#include "web/desk/watched_import.h"

// One process of the host that a person works in: the plug-in, a scene, and a desktop that is shown
// by a page. web/worker/desk_protocol.ts says what is told and done.

namespace web {

class Desk final : private host::LivePerson {
 public:
  Desk();
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;
  ~Desk();

  // Lets the person work, for ever. Sleeps whenever nothing is to be done.
  // REQUIRES: there is no other desk.
  void Run();

 private:
  // Each returns why it cannot be done, as a sentence; an empty text when it was done.
  using Deed = std::string (Desk::*)(const PersonEvent& event);
  enum class When {
    kAlways,   // it is a question
    kWaiting,  // the plug-in lets the person act
    kUnheld,   // nothing modal is open; what is done before that is over waits
    kAtTop     // nothing is under way
  };
  struct KnownDeed {
    const char* did;
    When when;
    Deed deed;
  };
  static const KnownDeed kDeeds[];
  static const KnownDeed* FindDeed(const std::string& did);  // null when there is none

  void Act(bool awaited) override;
  void TypeRange();
  void TellChanges();
  void TellBusy();
  [[nodiscard]] bool IsAnythingPutOff() const;
  std::optional<PersonEvent> NextDeed(bool awaited);
  void Take(const PersonEvent& event, When now);
  // While the plug-in shows how far it is.
  void Watch(const host::ProgressEvent& progress);
  void Glance();

  void NewApplication();
  void StartScene();
  void TellWholeScene();
  std::string Finish(const PersonEvent& event, const std::optional<host::FileResult>& result);

  std::string Import(const PersonEvent& event);
  std::string Export(const PersonEvent& event);
  std::string ShowAbout(const PersonEvent& event);
  std::string OpenScene(const PersonEvent& event);
  std::string NewScene(const PersonEvent& event);
  std::string SaveScene(const PersonEvent& event);
  std::string OpenPanel(const PersonEvent& event);
  std::string ClosePanel(const PersonEvent& event);
  std::string Use(const PersonEvent& event);
  std::string Type(const PersonEvent& event);
  std::string Answer(const PersonEvent& event);
  std::string Choose(const PersonEvent& event);
  std::string Pick(const PersonEvent& event);
  std::string RightClick(const PersonEvent& event);
  std::string Select(const PersonEvent& event);
  std::string SetTime(const PersonEvent& event);
  std::string Cancel(const PersonEvent& event);
  std::string AskLint(const PersonEvent& event);
  std::string StoreSettings(const PersonEvent& event);

  host::LiveDesktop desktop_{*this};
  std::unique_ptr<host::Application> application_;
  std::unique_ptr<host::Module> module_;
  std::unique_ptr<host::UtilityPanel> panel_;
  bool is_panel_open_ = false;
  host::gltf::SkinReading reading_;  // of the file that the scene is from

  ToldDesktop told_desktop_;
  ToldScene told_scene_;
  ToldMapping told_mapping_;
  ToldLosses told_losses_;
  ToldSettings told_settings_;

  std::optional<WatchedImport> importing_;
  std::deque<PersonEvent> put_off_;           // done while the plug-in did not let the person act
  std::deque<PersonEvent> held_;              // done while something modal was open
  std::optional<std::pair<int, int>> range_;  // to be typed into the next dialog
  std::chrono::steady_clock::time_point last_glance_;
  When now_ = When::kWaiting;
  bool is_told_idle_ = false;
};

}  // namespace web
