// The host's free functions, as a plug-in in this program sees them: these are found before those
// of the host's library, which they call.

#include <dlfcn.h>

#include <memory>
#include <stdexcept>
#include <unordered_map>

#include "sdk/core/animation.h"
#include "sdk/core/units.h"
#include "sdk/gfx/color.h"
#include "sdk/skelderutil/custom_edit.h"
#include "sdk/skelderutil/filename.h"
#include "sdk/skelderutil/window.h"
#include "tests/support/posix/journal/journal.h"

namespace test {
namespace {

// The function of the host's library that has the name of `ours`.
template <typename Function>
Function* HostsOwn(Function* ours) {
  Dl_info symbol{};
  dladdr(reinterpret_cast<void*>(ours), &symbol);
  void* const found = symbol.dli_sname == nullptr ? nullptr : dlsym(RTLD_NEXT, symbol.dli_sname);
  if (found == nullptr) throw std::runtime_error("The host has no such function");
  return reinterpret_cast<Function*>(found);
}

template <typename... Parts>
void Note(const Parts&... parts) {
  if (Journal* const journal = Journal::Current()) journal->Note(parts...);
}

std::string WindowName(HWND window) {
  const Journal* const journal = Journal::Current();
  return journal == nullptr ? "" : journal->WindowName(window);
}

// An edit control of the host.
class JournalEdit final : public ICustEdit {
 public:
  JournalEdit(ICustEdit& own, std::string name) : own_(own), name_(std::move(name)) {}
  float GetFloat(bool* valid) override {
    bool is_number = false;
    const float number = own_.GetFloat(&is_number);
    Note("edit ", name_, "? ", is_number ? Shown(number) : "no number");
    if (valid != nullptr) *valid = is_number;
    return number;
  }
  void SetText(const char* text) override {
    Note("edit ", name_, " = ", Quoted(text));
    own_.SetText(text);
  }
  ICustEdit& Own() { return own_; }
  const std::string& Name() const { return name_; }

 private:
  ICustEdit& own_;
  std::string name_;
};

}  // namespace
}  // namespace test

using test::HostsOwn;
using test::Note;

void SuspendAnimate() {
  Note("suspend animate");
  HostsOwn (&SuspendAnimate)();
}

void ResumeAnimate() {
  Note("resume animate");
  HostsOwn (&ResumeAnimate)();
}

void AnimateOn() {
  Note("animate on");
  HostsOwn (&AnimateOn)();
}

void AnimateOff() {
  Note("animate off");
  HostsOwn (&AnimateOff)();
}

void SuspendSetKeyMode() {
  Note("suspend set-key mode");
  HostsOwn (&SuspendSetKeyMode)();
}

void ResumeSetKeyMode() {
  Note("resume set-key mode");
  HostsOwn (&ResumeSetKeyMode)();
}

int GetTicksPerFrame() {
  const int ticks = HostsOwn(&GetTicksPerFrame)();
  Note("ticks per frame? ", ticks);
  return ticks;
}

void SetFrameRate(int frames_per_second) {
  Note("frame rate ", frames_per_second);
  HostsOwn (&SetFrameRate)(frames_per_second);
}

double GetMasterScale(int unit_type) {
  const double scale = HostsOwn(&GetMasterScale)(unit_type);
  Note("master scale of unit type ", unit_type, "? ", scale);
  return scale;
}

Color GetUIColor(int index) {
  const Color color = HostsOwn(&GetUIColor)(index);
  Note("interface color ", index, "? ", color);
  return color;
}

void SplitFilename(const char* name, CStr* path, CStr* file, CStr* extension) {
  Note("split the file name ", test::Quoted(name));
  HostsOwn (&SplitFilename)(name, path, file, extension);
}

void CenterWindow(HWND window, HWND over) {
  Note("center ", test::WindowName(window), " over ", test::WindowName(over));
  HostsOwn (&CenterWindow)(window, over);
}

ICustEdit* GetICustEdit(HWND window) {
  const std::string name = test::WindowName(window);
  ICustEdit* const own = HostsOwn(&GetICustEdit)(window);
  Note("obtain edit ", name, own == nullptr ? ": none" : "");
  return own == nullptr ? nullptr : new test::JournalEdit(*own, name);
}

void ReleaseICustEdit(ICustEdit* edit) {
  const std::unique_ptr<test::JournalEdit> shown(static_cast<test::JournalEdit*>(edit));
  if (shown == nullptr) return;
  Note("release edit ", shown->Name());
  HostsOwn (&ReleaseICustEdit)(&shown->Own());
}
