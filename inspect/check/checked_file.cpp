#include "inspect/check/checked_file.h"

namespace orvane {

void RequireRead(const std::string& message) {
  if (!message.empty()) throw CheckFailure(message, "There may be too little memory.");
}

void RequireSound(const std::string& fault) {
  if (fault.empty()) return;
  throw CheckFailure("was read wrongly: " + fault, "This is a fault of orvane; please report it.");
}

}  // namespace orvane
