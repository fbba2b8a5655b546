#pragma once

// Exceptions around calls of the host.
namespace orvane {

// Carries `step` out and goes on when it throws: for what is closed or taken back, where every part
// is due whatever became of the others.
template <typename Step>
void Attempt(const Step& step) noexcept {
  try {
    step();
  } catch (...) {
    // There is nothing more to take back.
  }
}

// Carries `step` out, which enters a state that is left later. `entered` tells that it may have to
// be, from the beginning of the step on, because the host may have it left before the step returns;
// a step that throws has not entered anything.
template <typename Step>
void Enter(bool& entered, const Step& step) {
  entered = true;
  try {
    step();
  } catch (...) {
    entered = false;
    throw;
  }
}

}  // namespace orvane
