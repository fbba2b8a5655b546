// Gives a fuzz target every file of the folders named, without a fuzzer, so that any compiler's
// build replays the corpus and what was found before.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "fuzz/target.h"
#include "tests/support/files.h"

namespace {

void Replay(const std::string& path) {
  std::printf("%s\n", path.c_str());
  std::fflush(stdout);  // the last name is the one that a crash belongs to
  const std::string bytes = test::ReadFile(path);
  const std::vector<std::uint8_t> exact(bytes.begin(), bytes.end());
  LLVMFuzzerTestOneInput(exact.data(), exact.size());
}

}  // namespace

int main(int count, char** folders) try {
  int replayed = 0;
  for (int i = 1; i < count; ++i) {
    for (const std::string& name : test::NamesIn(folders[i])) {
      Replay((std::filesystem::path(folders[i]) / name).string());
      ++replayed;
    }
  }
  if (replayed == 0) std::fprintf(stderr, "nothing to replay\n");
  return replayed == 0 ? 1 : 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
