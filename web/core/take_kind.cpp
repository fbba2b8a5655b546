#include "web/core/take_kind.h"

#include <optional>
#include <string_view>

#include "inspect/check/content_kind.h"
#include "inspect/check/started_source.h"
#include "inspect/check/text_flaw.h"
#include "web/core/take.h"
#include "web/core/take_reading.h"

namespace web {

using cli::FileKind;
using orvane::ContentKind;

FileKind FindTakeKind(const std::string& path) {
  orvane::FileSource source = OpenFile(path);
  orvane::StartedSource started(source);
  const std::string_view start = started.Start();
  const std::optional<ContentKind> content = orvane::FindContentKind(start);
  if (content == ContentKind::kHtr) return FileKind::kHtr;
  if (content == ContentKind::kTrc) return FileKind::kTrc;
  // The readers have words for what can be seen to be something else.
  const bool is_told = content || orvane::FindTextFlaw(start);
  if (is_told || cli::FindNamedKind(path)) return cli::KindOf(path);
  throw Refusal{
      "Neither its name nor its first lines say what it is: HTR files begin with [Header], TRC "
      "files with PathFileType",
      "file-refused"};
}

}  // namespace web
