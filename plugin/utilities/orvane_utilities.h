#pragma once

#include "plugin/shell/message_sink.h"
#include "sdk/core/plugin.h"

// The motion-capture panel in the host's utility tab. So far opening it is refused with a message.
namespace orvane {

class OrvaneUtilities final : public UtilityObj {
 public:
  // `messages` is the module's and outlives this object.
  explicit OrvaneUtilities(MessageSink& messages) : messages_(messages) {}

  // Tells the user that there is no panel yet.
  void BeginEditParams(Interface* interface, IUtil* utility) override;

  void EndEditParams(Interface* /*interface*/, IUtil* /*utility*/) override {}

 private:
  MessageSink& messages_;
};

}  // namespace orvane
