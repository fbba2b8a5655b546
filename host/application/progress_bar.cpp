#include "host/application/progress_bar.h"

namespace host {

bool ProgressBar::Start(const char* title, bool show_bar, ProgressCallback callback,
                        void* argument) {
  if (open_) {
    misuse_.Report("ProgressStart while a progress bar is open");
    return false;
  }
  open_ = true;
  percent_ = 0;
  title_ = title == nullptr ? "" : title;
  callback_ = callback;
  argument_ = argument;
  Record(ProgressEvent::Kind::kStart, show_bar);
  return true;
}

bool ProgressBar::Update(int percent, bool show_percent, const char* title) {
  if (!open_) {
    misuse_.Report("ProgressUpdate without an open progress bar");
    return true;
  }
  percent_ = percent;
  if (title != nullptr) title_ = title;
  Record(ProgressEvent::Kind::kUpdate, show_percent);
  return callback_ == nullptr || callback_(argument_) == 0;
}

void ProgressBar::End() {
  if (!open_) {
    misuse_.Report("ProgressEnd without an open progress bar");
    return;
  }
  open_ = false;
  callback_ = nullptr;
  argument_ = nullptr;
  Record(ProgressEvent::Kind::kEnd, false);
}

void ProgressBar::Record(ProgressEvent::Kind kind, bool visible) {
  events_.push_back({kind, title_, percent_, visible});
  if (observer_) observer_(events_.back());
}

}  // namespace host
