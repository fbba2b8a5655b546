#include "plugin/exchange/host_modes.h"

#include "sdk/core/animation.h"

namespace orvane {

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

}  // namespace orvane
