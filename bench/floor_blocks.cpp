#include "bench/floor_blocks.h"

#include <cstdlib>

namespace bench {
namespace {

[[noreturn]] void Fail(const char* what, const std::string& path) {
  std::fprintf(stderr, "floor: %s %s\n", what, path.c_str());
  std::exit(3);
}

}  // namespace

File OpenFile(const std::string& path, const char* mode) {
  File file(std::fopen(path.c_str(), mode));
  if (!file) Fail("cannot open", path);
  return file;
}

Output::Output(const std::string& path) : file_(OpenFile(path, "wb")), buffer_(kLong + kRoom) {
  std::setvbuf(file_.get(), nullptr, _IONBF, 0);
}

Output::~Output() { Flush(); }

void Output::Flush() {
  if (std::fwrite(buffer_.data(), 1, used_, file_.get()) != used_)
    Fail("cannot write", "the output");
  used_ = 0;
}

}  // namespace bench
