#include "platform/windows/piece_worker.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "platform/interrupt.h"

namespace platform {
namespace {

// Names, for a worker, the ends of its pipes: "ORDERS ANSWERS", as numbers.
constexpr wchar_t kPipesVariable[] = L"ORVANE_WORKER_PIPES";

// What comes before a result, or in its place.
constexpr std::uint64_t kNoResult = 0;
constexpr std::uint64_t kResult = 1;

std::wstring NumberOf(HANDLE handle) {
  return std::to_wstring(reinterpret_cast<std::uintptr_t>(handle));
}

HANDLE HandleOf(std::uint64_t number) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): handed over as a number
  return reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(number));
}

std::wstring OwnFile() {
  constexpr DWORD kLongestPath = 32768;
  std::wstring path(kLongestPath, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), kLongestPath));
  return path;
}

// Lets new processes have `handle` as long as it lives.
class Inheritance {
 public:
  explicit Inheritance(HANDLE handle) : handle_(handle) { Allow(HANDLE_FLAG_INHERIT); }
  Inheritance(const Inheritance&) = delete;
  Inheritance& operator=(const Inheritance&) = delete;
  ~Inheritance() { Allow(0); }

 private:
  void Allow(DWORD flag) const { SetHandleInformation(handle_, HANDLE_FLAG_INHERIT, flag); }

  HANDLE handle_;
};

// Sets the variable for new processes as long as it lives.
class PipesVariable {
 public:
  PipesVariable(HANDLE orders, HANDLE answers) {
    SetEnvironmentVariableW(kPipesVariable, (NumberOf(orders) + L" " + NumberOf(answers)).c_str());
  }
  PipesVariable(const PipesVariable&) = delete;
  PipesVariable& operator=(const PipesVariable&) = delete;
  ~PipesVariable() { SetEnvironmentVariableW(kPipesVariable, nullptr); }
};

// A worker has no standard output or error: what it says would be said twice.
OwnedHandle StartThisProgram(HANDLE orders, HANDLE answers) {
  const Inheritance inherit_orders(orders);
  const Inheritance inherit_answers(answers);
  const PipesVariable variable(orders, answers);
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  PROCESS_INFORMATION process{};
  std::wstring command_line = GetCommandLineW();
  if (CreateProcessW(OwnFile().c_str(), command_line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                     nullptr, &startup, &process) == 0) {
    return OwnedHandle();
  }
  CloseHandle(process.hThread);
  return OwnedHandle(process.hProcess);
}

std::optional<std::string> DoPiece(const SideBySide& pieces, std::size_t index) {
  try {
    return pieces.work(index);
  } catch (...) {
    return {};
  }
}

bool SendResult(HANDLE answers, const std::optional<std::string>& result) {
  if (!result) return SendNumber(answers, kNoResult);
  return SendNumber(answers, kResult) && SendBytes(answers, *result);
}

bool IsPipe(HANDLE handle) { return GetFileType(handle) == FILE_TYPE_PIPE; }

}  // namespace

std::unique_ptr<PieceWorker> PieceWorker::Start() {
  std::optional<Pipe> orders = MakePipe();
  std::optional<Pipe> answers = MakePipe();
  if (!orders || !answers) return nullptr;
  OwnedHandle process = StartThisProgram(orders->reader.Get(), answers->writer.Get());
  if (process.Get() == nullptr) return nullptr;
  return std::unique_ptr<PieceWorker>(
      new PieceWorker(std::move(process), std::move(orders->writer), std::move(answers->reader)));
}

PieceWorker::PieceWorker(OwnedHandle process, OwnedHandle orders, OwnedHandle answers)
    : process_(std::move(process)), orders_(std::move(orders)), answers_(std::move(answers)) {}

bool PieceWorker::WaitUntilReady(std::size_t count) {
  return ReceiveNumber(answers_.Get()) == std::uint64_t{count};
}

PieceWorker::Answer PieceWorker::Do(std::size_t index) {
  if (!SendNumber(orders_.Get(), index)) return {};
  const std::optional<std::uint64_t> kind = ReceiveNumber(answers_.Get());
  if (!kind) return {};
  if (*kind == kNoResult) return {std::nullopt, true};
  std::optional<std::string> result = ReceiveBytes(answers_.Get());
  const bool alive = result.has_value();
  return {std::move(result), alive};
}

std::optional<WorkerPipes> OwnWorkerPipes() {
  std::array<wchar_t, 64> text{};
  const DWORD length =
      GetEnvironmentVariableW(kPipesVariable, text.data(), static_cast<DWORD>(text.size()));
  if (length == 0 || length >= text.size()) return {};
  wchar_t* rest = nullptr;
  const HANDLE orders = HandleOf(std::wcstoull(text.data(), &rest, 10));
  const HANDLE answers = HandleOf(std::wcstoull(rest, nullptr, 10));
  if (!IsPipe(orders) || !IsPipe(answers)) return {};
  return WorkerPipes{OwnedHandle(orders), OwnedHandle(answers)};
}

void ServeAndExit(const WorkerPipes& pipes, std::size_t count, const SideBySide& pieces) {
  HoldInterrupts();
  bool answered = SendNumber(pipes.answers.Get(), count);
  while (answered) {
    const std::optional<std::uint64_t> order = ReceiveNumber(pipes.orders.Get());
    if (!order) break;
    answered = SendResult(pipes.answers.Get(), DoPiece(pieces, static_cast<std::size_t>(*order)));
  }
  std::exit(0);
}

}  // namespace platform
