#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

// Other processes, for tests.

namespace test {

// Runs `command_line` in `folder` and returns its exit status, or -1 when it cannot be run.
inline int RunProcess(std::string command_line, const std::filesystem::path& folder) {
  STARTUPINFOA startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process{};
  if (CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                     folder.string().c_str(), &startup, &process) == 0) {
    return -1;
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD status = 0;
  GetExitCodeProcess(process.hProcess, &status);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(status);
}

}  // namespace test
