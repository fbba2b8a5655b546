#include "host/desktop/stopped_clock.h"

#include <cassert>
#include <utility>

#include "platform/program_clock.h"

namespace {

const std::int64_t* installed_clock = nullptr;

}  // namespace

const std::int64_t* SkelderStoppedClock() { return installed_clock; }

namespace host {

StoppedClock::StoppedClock(std::int64_t seconds)
    : seconds_(seconds), previous_(std::exchange(installed_clock, &seconds_)) {}

StoppedClock::~StoppedClock() {
  assert(installed_clock == &seconds_);
  installed_clock = previous_;
}

}  // namespace host
