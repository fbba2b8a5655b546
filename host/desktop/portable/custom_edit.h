#pragma once

#include <string>

#include "sdk/skelderutil/custom_edit.h"

// The host's own edit control on a desktop without screen: a text.

namespace host {

class CustomEdit final : public ICustEdit {
 public:
  // `text` is what the control shows, and outlives this object.
  explicit CustomEdit(std::string& text) : text_(text) {}
  CustomEdit(const CustomEdit&) = delete;
  CustomEdit& operator=(const CustomEdit&) = delete;

  float GetFloat(bool* valid) override;
  void SetText(const char* text) override { text_ = text; }

 private:
  std::string& text_;
};

}  // namespace host
