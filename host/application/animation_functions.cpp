// The SDK's global functions about animation modes, clock and units: they act on the scene of the
// current application.

#include "host/application/application.h"
#include "sdk/core/animation.h"
#include "sdk/core/units.h"

namespace {

// The scene of the current application, or null.
host::Scene* CurrentScene() {
  host::Application* application = host::Application::Current();
  return application == nullptr ? nullptr : &application->scene();
}

// The current scene's animation state, or null.
host::AnimationState* CurrentAnimation() {
  host::Scene* scene = CurrentScene();
  return scene == nullptr ? nullptr : &scene->Animation();
}

}  // namespace

void SuspendAnimate() {
  if (auto* animation = CurrentAnimation()) animation->AnimateMode().Suspend();
}

void ResumeAnimate() {
  if (auto* animation = CurrentAnimation()) animation->AnimateMode().Resume();
}

void AnimateOn() {
  if (auto* animation = CurrentAnimation()) animation->AnimateMode().Set(true);
}

void AnimateOff() {
  if (auto* animation = CurrentAnimation()) animation->AnimateMode().Set(false);
}

void SuspendSetKeyMode() {
  if (auto* animation = CurrentAnimation()) animation->SetKeyMode().Suspend();
}

void ResumeSetKeyMode() {
  if (auto* animation = CurrentAnimation()) animation->SetKeyMode().Resume();
}

int GetTicksPerFrame() {
  const auto* animation = CurrentAnimation();
  return animation == nullptr ? host::AnimationState().TicksPerFrame() : animation->TicksPerFrame();
}

void SetFrameRate(int frames_per_second) {
  if (auto* animation = CurrentAnimation()) animation->SetFrameRate(frames_per_second);
}

double GetMasterScale(int unit_type) {
  const auto* scene = CurrentScene();
  if (scene == nullptr || unit_type != kUnitTypeMillimeters) return 1.0;
  return scene->MillimetersPerUnit();
}
