#include "cli/common/whole_output.h"

#include <utility>

#include "cli/common/failure.h"
#include "cli/common/outputs.h"
#include "platform/interrupt.h"
#include "platform/path_text.h"

namespace cli {

WholeOutput::WholeOutput(std::string path, bool replace, std::string kept_advice)
    : path_(std::move(path)), kept_advice_(std::move(kept_advice)), file_(path_, replace) {
  RequireNone(file_.WhyImpossible());
}

std::string WholeOutput::Folder() const {
  const std::string folder = platform::TextOf(platform::PathOf(path_).parent_path());
  return folder.empty() ? "." : folder;
}

void WholeOutput::Append(std::string_view bytes) {
  platform::HoldInterrupts();
  const std::string error = file_.Append(bytes);
  StopIfInterrupted();
  RequireNone(error);
}

void WholeOutput::Deliver() {
  std::string error = file_.Finish();
  StopIfInterrupted();
  if (error.empty()) error = file_.Deliver();
  RequireNone(error);
}

void WholeOutput::Deliver(std::string_view bytes) {
  Append(bytes);
  Deliver();
}

void WholeOutput::RequireNone(const std::string& error) const {
  if (error.empty()) return;
  Complaint complaint = ComplainAboutOutput(path_, file_, error);
  if (file_.IsTaken() && !kept_advice_.empty()) complaint.advice = kept_advice_;
  throw Failure{ExitStatus::kInputOutput, {complaint}};
}

}  // namespace cli
