#include "host/application/application.h"

#include <cassert>

#include "host/desktop/pending_messages.h"

namespace host {
namespace {

Application* current_application = nullptr;

}  // namespace

Application::Application() : previous_(current_application) { current_application = this; }

Application::~Application() {
  assert(current_application == this);
  current_application = previous_;
}

Application* Application::Current() { return current_application; }

void Application::CustomEditReleased() {
  if (held_custom_edits_ == 0) {
    scene_.Misuse().Report("ReleaseICustEdit of a control that is not held");
  } else {
    --held_custom_edits_;
  }
}

void Application::ProcessPendingMessages() {
  ++pending_message_calls_;
  if (!HandlePendingMessages(picking_.IsActive())) Exit();
}

void Application::Exit() {
  exited_ = true;
  callbacks_.TellExit(main_window());
  picking_.Leave();
}

}  // namespace host
