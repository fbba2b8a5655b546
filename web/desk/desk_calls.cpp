#include <emscripten.h>

#include "web/desk/desk.h"

// What JavaScript calls of the desk.

extern "C" {

// Lets the person work. Sleeps whenever there is nothing to do, and never returns.
EMSCRIPTEN_KEEPALIVE void orvane_desk_run() {  // NOLINT: a name in JavaScript
  web::Desk desk;
  desk.Run();
}

}  // extern "C"
