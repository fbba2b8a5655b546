#include "cli/common/output_complaint.h"

namespace cli {

Complaint ComplainAboutOutput(const std::string& path, const platform::OutputFile& file,
                              const std::string& reason) {
  if (file.IsReadOnly()) {
    return {path, reason, "It is kept, also with --force; make it writable first."};
  }
  return {path, reason, file.IsTaken() ? "It is kept; --force replaces it." : ""};
}

}  // namespace cli
