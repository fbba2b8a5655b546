#include "host/application/application.h"

namespace host {
namespace {

Application* current_application = nullptr;

}  // namespace

Application::Application() : previous_(current_application) { current_application = this; }

Application::~Application() { current_application = previous_; }

Application* Application::Current() { return current_application; }

}  // namespace host
