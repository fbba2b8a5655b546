#pragma once

#include <algorithm>
#include <cstring>
#include <map>
#include <optional>
#include <string>

#include "host/desktop/top_level_window.h"
#include "platform/dialog.h"

namespace test {

// A dialog that has every control there is, for what no script can do: asking a handler for a
// control that its dialog lacks.
class FakeDialog final : public platform::Dialog {
 public:
  struct Control {
    std::string text;
    bool checked = false;
    bool enabled = true;
  };

  Control& operator[](int id) { return controls_[id]; }
  const std::optional<int>& Result() const { return result_; }

  HWND Window() override { return window_.Handle(); }
  HWND ControlWindow(int /*control*/) override { return nullptr; }
  void SetText(int control, const char* text) override { controls_[control].text = text; }
  std::size_t GetText(int control, char* buffer, std::size_t size) override {
    const std::string& text = controls_[control].text;
    const std::size_t length = std::min(text.size(), size - 1);
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return length;
  }
  void SetChecked(int control, bool checked) override { controls_[control].checked = checked; }
  bool IsChecked(int control) override { return controls_[control].checked; }
  void SetEnabled(int control, bool enabled) override { controls_[control].enabled = enabled; }
  void End(int result) override { result_ = result; }

 private:
  host::TopLevelWindow window_;
  std::map<int, Control> controls_;
  std::optional<int> result_;
};

}  // namespace test
