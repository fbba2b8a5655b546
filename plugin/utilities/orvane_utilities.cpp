#include "plugin/utilities/orvane_utilities.h"

namespace orvane {

void OrvaneUtilities::BeginEditParams(Interface* /*interface*/, IUtil* /*utility*/) {
  messages_.Report("OrvaneUtilities is not part of this build.", "OrvaneUtilities Error");
}

}  // namespace orvane
