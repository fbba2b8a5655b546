#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <string>
#include <utility>

#include "tests/support/hooked_interface.h"

namespace test {

[[noreturn]] inline void RunOutOfMemory() { throw std::bad_alloc(); }
[[noreturn]] inline void ThrowNumber() { throw 1; }

// Makes calls of a host fail. A call that takes back what another one has done fails when it has
// done so; the others before they do anything.
class FailingCalls {
 public:
  using Failure = std::function<void()>;

  // `host` outlives this object.
  explicit FailingCalls(HookedInterface& host) : host_(host) {}
  FailingCalls(const FailingCalls&) = delete;
  FailingCalls& operator=(const FailingCalls&) = delete;
  ~FailingCalls() { End(); }

  // From now on call number `n` from here, counted from 1, fails.
  void At(int n, Failure fail) {
    calls_ = 0;
    has_met_ = false;
    Watch([this, n](const std::string&) { return ++calls_ == n; }, std::move(fail));
  }

  // From now on every call of `operation` fails.
  void At(const std::string& operation, Failure fail) {
    Watch([operation](const std::string& called) { return called == operation; }, std::move(fail));
  }

  // From now on none does.
  void End() {
    host_.before = nullptr;
    host_.after = nullptr;
  }

  // Whether there was such a call.
  bool HaveFailed() const { return has_met_; }

 private:
  static bool TakesBack(const std::string& operation) {
    return operation == "ProgressEnd" || operation == "ClearPickMode" ||
           operation == "UnRegisterExitSkelderCallback" || operation == "DeleteRollupPage";
  }

  void Watch(std::function<bool(const std::string&)> is_meant, Failure fail) {
    host_.before = [this, is_meant = std::move(is_meant), fail](const std::string& operation) {
      fails_behind_ = false;
      if (!is_meant(operation)) return;
      has_met_ = true;
      fails_behind_ = TakesBack(operation);
      if (!fails_behind_) fail();
    };
    host_.after = [this, fail](const std::string& /*operation*/) {
      if (std::exchange(fails_behind_, false)) fail();
    };
  }

  HookedInterface& host_;
  int calls_ = 0;
  bool has_met_ = false;
  bool fails_behind_ = false;
};

// Does `work` again and again, with call number 1 of `host` failing, then number 2, and so on until
// there is no such call. After each that failed, `check` is asked whether it was as it should.
// Returns how many calls there are.
inline int FailAtEachCall(HookedInterface& host, const FailingCalls::Failure& fail,
                          const std::function<void()>& work, const std::function<void()>& check) {
  FailingCalls calls(host);
  for (int n = 1;; ++n) {
    SCOPED_TRACE(n);
    calls.At(n, fail);
    work();
    calls.End();
    if (!calls.HaveFailed()) return n - 1;
    check();
  }
}

}  // namespace test
