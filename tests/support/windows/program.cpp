#include "tests/support/program.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <list>
#include <stdexcept>
#include <string>
#include <thread>

#include "tests/support/environment_variable.h"

namespace test {
namespace {

std::wstring Wide(const std::string& text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size)));
  return wide;
}

// As programs take it apart again: blanks are within quotes, and backslashes before a quote count
// twice.
std::string Quoted(const std::string& argument) {
  std::string quoted = "\"";
  std::size_t backslashes = 0;
  for (const char letter : argument) {
    if (letter == '"') quoted.append(backslashes + 1, '\\');
    backslashes = letter == '\\' ? backslashes + 1 : 0;
    quoted += letter;
  }
  return quoted.append(backslashes, '\\') + "\"";
}

std::wstring CommandLine(const std::vector<std::string>& command) {
  std::string line;
  for (const std::string& argument : command) line += (line.empty() ? "" : " ") + Quoted(argument);
  return Wide(line);
}

// Where one of the program's streams goes: we read one end, the program writes to the other.
class Stream {
 public:
  Stream() {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    if (!CreatePipe(&read_end_, &write_end_, &inherited, 0)) throw std::runtime_error("no pipe");
    SetHandleInformation(read_end_, HANDLE_FLAG_INHERIT, 0);
  }
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;
  ~Stream() {
    CloseWriteEnd();
    CloseHandle(read_end_);
  }

  HANDLE WriteEnd() const { return write_end_; }
  void CloseWriteEnd() {
    if (write_end_ != nullptr) CloseHandle(write_end_);
    write_end_ = nullptr;
  }

  // To its end.
  std::string ReadBytes() const {
    std::string text;
    std::array<char, 65536> buffer;
    DWORD count = 0;
    while (ReadFile(read_end_, buffer.data(), buffer.size(), &count, nullptr) && count > 0) {
      text.append(buffer.data(), count);
    }
    return text;
  }

  // The same, with line ends as everywhere else.
  std::string ReadText() const {
    std::string text = ReadBytes();
    std::erase(text, '\r');
    return text;
  }

 private:
  HANDLE read_end_ = nullptr;
  HANDLE write_end_ = nullptr;
};

// What the program reads from: a file, or what this process does.
class Input {
 public:
  explicit Input(const std::string& file) {
    if (file.empty()) return;
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    file_ = CreateFileW(Wide(file).c_str(), GENERIC_READ, FILE_SHARE_READ, &inherited,
                        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file_ == INVALID_HANDLE_VALUE) throw std::runtime_error("no " + file);
  }
  Input(const Input&) = delete;
  Input& operator=(const Input&) = delete;
  ~Input() {
    if (file_ != nullptr) CloseHandle(file_);
  }

  HANDLE Get() const { return file_ == nullptr ? GetStdHandle(STD_INPUT_HANDLE) : file_; }

 private:
  HANDLE file_ = nullptr;
};

HANDLE Start(const ProgramRun& run, const Input& input, const Stream& output, const Stream& error) {
  std::list<EnvironmentVariable> environment;
  for (const std::string& variable : run.environment) {
    const std::size_t equals = variable.find('=');
    environment.emplace_back(variable.substr(0, equals).c_str(), variable.substr(equals + 1));
  }
  std::wstring line = CommandLine(run.command);
  const std::wstring folder = Wide(run.folder);
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = input.Get();
  startup.hStdOutput = output.WriteEnd();
  startup.hStdError = error.WriteEnd();
  PROCESS_INFORMATION process{};
  const auto starts = [&] {
    return CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                          folder.empty() ? nullptr : folder.c_str(), &startup, &process) != 0;
  };
  // Wine refuses one in some hundreds where several tests start programs at once.
  constexpr int kTries = 5;
  for (int tries = 1; !starts(); ++tries) {
    const DWORD reason = GetLastError();
    if (tries == kTries) {
      throw std::runtime_error(run.command.front() + " does not start: error " +
                               std::to_string(reason));
    }
    Sleep(100);
  }
  CloseHandle(process.hThread);
  return process.hProcess;
}

}  // namespace

ProgramResult RunProgram(const ProgramRun& run) {
  Stream output;
  Stream error;
  const Input input(run.input_file);
  const HANDLE process = Start(run, input, output, error);
  output.CloseWriteEnd();
  error.CloseWriteEnd();
  ProgramResult result;
  std::thread reader([&] { result.error = error.ReadText(); });
  result.output = run.writes_bytes ? output.ReadBytes() : output.ReadText();
  reader.join();
  WaitForSingleObject(process, INFINITE);
  DWORD status = 0;
  GetExitCodeProcess(process, &status);
  result.status = static_cast<int>(status);
  CloseHandle(process);
  return result;
}

}  // namespace test
