#pragma once

// A command of the utility panel that calls the host for a while. The host may let the user close
// the panel meanwhile, in the middle of any of these calls.
namespace orvane {

class PanelCommand {
 public:
  // The panel closes: takes back what the host is to be rid of and lets go of the host, which the
  // command, when it goes on, calls no more. Nor does it tell the user anything then. The second
  // time nothing happens.
  virtual void End() noexcept = 0;

 protected:
  ~PanelCommand() = default;
};

}  // namespace orvane
