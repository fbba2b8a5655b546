#pragma once

#include <string>
#include <string_view>

#include "formats/text/byte_source.h"
#include "inspect/check/htr_check.h"
#include "inspect/check/trc_check.h"

// What is found in the bytes of a file, for tests that have no use for what they hold.
namespace test {

inline orvane::CheckedFile CheckedHtr(const std::string& file, std::string_view bytes) {
  orvane::HtrDocument document;
  orvane::MemorySource source(bytes);
  return orvane::CheckHtr(file, source, document);
}

inline orvane::CheckedFile CheckedTrc(const std::string& file, std::string_view bytes) {
  orvane::TRCDocument document;
  orvane::MemorySource source(bytes);
  return orvane::CheckTrc(file, source, document);
}

}  // namespace test
