#pragma once

#include "platform/export.h"

// The moment at which a plug-in lets the user act, on the desktop in use. What follows when he does
// not is up to the application.

namespace host {

// Lets the user of the desktop in use do what he has been waiting to do: when he is `awaited`, or
// when a modeless dialog stands open. Returns false when he is awaited and nobody is there any more
// who could do anything: the application ends then.
[[nodiscard]] SKELDER_API bool HandlePendingMessages(bool awaited);

}  // namespace host
