#include "host/application/utility_panel.h"

#include <cassert>
#include <utility>

#include "host/application/application.h"

// Offers nothing so far; plug-ins keep the pointer only.
class IUtil {};

namespace host {
namespace {

IUtil utility_services;

}  // namespace

UtilityPanel::UtilityPanel(std::unique_ptr<UtilityObj> utility, Application& application)
    : utility_(std::move(utility)), application_(application) {
  Open();
}

UtilityPanel::~UtilityPanel() { Close(); }

void UtilityPanel::Open() {
  assert(utility_ != nullptr);
  open_ = true;
  utility_->BeginEditParams(&application_.plugin_interface(), &utility_services);
}

void UtilityPanel::Close() {
  if (!std::exchange(open_, false)) return;
  utility_->EndEditParams(&application_.plugin_interface(), &utility_services);
}

void UtilityPanel::Delete() {
  open_ = false;
  utility_.reset();
}

}  // namespace host
