#include "plugin/exchange/host_session.h"

#include "plugin/exchange/attempt.h"
#include "sdk/core/animation.h"

namespace orvane {
namespace {

std::uint32_t GoOn(void* /*argument*/) { return 0; }

}  // namespace

void SuspendHostModes(Interface& interface) {
  SuspendAnimate();
  SuspendSetKeyMode();
  AnimateOff();
  if (interface.IsPlaybackRunning()) interface.StopPlayback();
}

void ResumeHostModes() {
  ResumeSetKeyMode();
  ResumeAnimate();
}

OpenProgressBar::OpenProgressBar(Interface& interface, const char* title) : interface_(interface) {
  interface_.ProgressStart(title, true, &GoOn, nullptr);
}

OpenProgressBar::~OpenProgressBar() {
  Attempt([this] { interface_.ProgressEnd(); });
}

}  // namespace orvane
