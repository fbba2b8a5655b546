#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "host/application/application.h"
#include "host/application/module.h"
#include "host/desktop/settings.h"

// Settings and an application for modules to be loaded into.

class ModuleTest : public testing::Test {
 protected:
  // The path of one of the fixture modules.
  static std::string Fixture(const std::string& name) {
    return std::string(ORVANE_BINARY_DIR) + "/tests/" + name + ORVANE_MODULE_SUFFIX;
  }

  // Loads `path`; a refusal is kept in `refusal_`.
  std::unique_ptr<host::Module> Load(const std::string& path,
                                     std::uint32_t interface_number = kSkelderInterface) {
    return host::Module::Load(path, {application_, &settings_, interface_number}, refusal_);
  }

  host::FreshSettings settings_;
  host::Application application_;
  std::string refusal_;
};
