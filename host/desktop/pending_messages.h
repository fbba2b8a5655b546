#pragma once

#include "platform/export.h"

namespace host {

// Lets the user of the desktop in use do what he has been waiting to do: when he is `awaited`, or
// when a modeless dialog stands open. Returns false when he is awaited and nobody is there any more
// who could do anything: the application ends then.
SKELDER_API bool HandlePendingMessages(bool awaited);

}  // namespace host
