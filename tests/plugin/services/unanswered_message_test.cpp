#include <gtest/gtest.h>

#include "plugin/services/message_sink.h"

// What holds of messages only where there need not be anybody who reads them.

namespace orvane {
namespace {

TEST(MessageSinkTest, AskIsFalseWhenNobodyCanAnswer) {
  MessageSink sink;
  EXPECT_FALSE(sink.Ask("Overwrite?", "ConvertBVK"));
}

}  // namespace
}  // namespace orvane
