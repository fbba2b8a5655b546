#include "cli/convert/conversion.h"

namespace cli {
std::string_view NameOf(ConversionStatus status) {
  switch (status) {
    case ConversionStatus::kPlanned:
      return "planned";
    case ConversionStatus::kConverted:
      return "converted";
    case ConversionStatus::kBroken:
      return "broken";
    case ConversionStatus::kRefused:
      return "refused";
    case ConversionStatus::kEmpty:
      return "empty";
    case ConversionStatus::kExists:
      return "exists";
    case ConversionStatus::kUnreadable:
      return "unreadable";
    case ConversionStatus::kFailed:
      return "failed";
    case ConversionStatus::kInterrupted:
      return "interrupted";
  }
  return "";
}

ExitStatus ExitStatusOf(ConversionStatus status) {
  switch (status) {
    case ConversionStatus::kPlanned:
    case ConversionStatus::kConverted:
      return ExitStatus::kDone;
    case ConversionStatus::kBroken:
    case ConversionStatus::kRefused:
    case ConversionStatus::kEmpty:
      return ExitStatus::kRefused;
    case ConversionStatus::kExists:
    case ConversionStatus::kUnreadable:
    case ConversionStatus::kFailed:
      return ExitStatus::kInputOutput;
    case ConversionStatus::kInterrupted:
      return ExitStatus::kInterrupted;
  }
  return ExitStatus::kInputOutput;
}

}  // namespace cli
