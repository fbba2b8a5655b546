#include "plugin/exchange/failure_report.h"

#include <new>
#include <stdexcept>

namespace orvane {

// A size that no container takes is a want of memory, too.
const char* FailureText(const FailureTexts& texts) noexcept {
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return texts.no_memory;
  } catch (const std::length_error&) {
    return texts.no_memory;
  } catch (...) {
    return texts.otherwise;
  }
}

}  // namespace orvane
