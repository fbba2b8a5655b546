#include "python/binding/input.h"

#include <span>
#include <type_traits>

#include "formats/text/files.h"
#include "python/binding/file_error.h"
#include "python/binding/interruption.h"

namespace binding {
namespace {

using orvane::ByteSource;

// Looks for the user's wish to stop now and then.
template <typename Source>
class StoppableSource final : public ByteSource {
 public:
  template <typename Argument>
  StoppableSource(const Argument& argument, std::string name)
      : source_(argument), name_(std::move(name)) {}

  [[nodiscard]] std::size_t Read(std::span<char> block) override {
    const std::size_t count = source_.Read(block);
    if constexpr (std::is_same_v<Source, orvane::FileSource>) {
      if (source_.HasFailed()) {
        throw FileRefusal{name_, "could not be read to its end", "file-unreadable"};
      }
    }
    interruption_.Pass(count);
    return count;
  }
  [[nodiscard]] std::size_t Size() const override { return source_.Size(); }

  [[nodiscard]] const Source& Watched() const { return source_; }

 private:
  Source source_;
  std::string name_;
  Interruption interruption_;
};

}  // namespace

std::unique_ptr<ByteSource> Input::Open() const {
  if (bytes_) return std::make_unique<StoppableSource<orvane::MemorySource>>(*bytes_, name_);
  auto source = std::make_unique<StoppableSource<orvane::FileSource>>(name_, name_);
  if (!source->Watched().IsOpen()) {
    throw FileRefusal{name_, "could not be opened", "file-unreadable"};
  }
  return source;
}

}  // namespace binding
