#include "platform/windows/activation_context.h"

namespace platform {
namespace {

// The number under which the system looks for the manifest of a library.
const auto* const kManifest = MAKEINTRESOURCEA(2);

HANDLE CreateFromManifest(HINSTANCE module) {
  ACTCTXA context{};
  context.cbSize = sizeof(context);
  context.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
  context.lpResourceName = kManifest;
  context.hModule = module;
  return CreateActCtxA(&context);
}

}  // namespace

ActivationContext::ActivationContext(HINSTANCE module) : context_(CreateFromManifest(module)) {
  if (context_ == INVALID_HANDLE_VALUE) return;
  active_ = ActivateActCtx(context_, &cookie_) != 0;
}

ActivationContext::~ActivationContext() {
  if (active_) DeactivateActCtx(0, cookie_);
  if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
}

}  // namespace platform
