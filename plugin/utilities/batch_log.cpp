#include "plugin/utilities/batch_log.h"

#include "formats/text/files.h"
#include "plugin/utilities/format_text.h"

namespace orvane {

bool BatchLog::Open(const std::string& path) {
  file_ = CreateFileForText(path);
  return file_.is_open();
}

void BatchLog::WriteHeader(const std::string& date_time, std::size_t file_count) {
  file_ << "Orvane OrvaneFileIO TRC to BVK Batch Conversion Log\n"
        << date_time << "Processing " << std::to_string(file_count) << " files...\n"
        << std::flush;
}

void BatchLog::WriteFormat(const std::string& text) {
  file_ << FormatWithoutArguments(text) << std::flush;
}

void BatchLog::WriteDone(const std::string& path) {
  file_ << "file: " << path << " done.\n" << std::flush;
}

}  // namespace orvane
