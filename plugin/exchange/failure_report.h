#pragma once

#include "plugin/services/message_sink.h"

// What the user is told about work that an exception has ended.
namespace orvane {

// Texts that stay.
struct FailureTexts {
  const char* title;
  const char* no_memory;
  const char* otherwise;
};

// Tells it by `messages`. To be called where the exception is caught, when all that the work had
// begun is taken back.
void ReportFailure(MessageSink& messages, const FailureTexts& texts) noexcept;

}  // namespace orvane
