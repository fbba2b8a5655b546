#pragma once

#include <functional>
#include <string>

#include "tests/support/posix/journal/journal_text_file.h"

namespace test {

inline void Append(JournalLines& lines, const JournalLines& added) {
  lines.insert(lines.end(), added.begin(), added.end());
}

// A run of the journal `name`, and what may happen to it so that it goes another way. A `Stage` is
// a JournalStage with an operation Run.
template <typename Stage>
struct Disturbed {
  std::string name;
  std::function<void(Stage&)> prepare;

  // How it departs from the journal when that happens.
  JournalLines When(const std::string& what, const std::function<void(Stage&)>& happen) const {
    Stage undisturbed;
    prepare(undisturbed);
    const JournalLines whole = undisturbed.Run();
    Stage stage;
    prepare(stage);
    happen(stage);
    return Departure(name, what, whole, stage.Run());
  }

  // The same when the n-th value, instance or node is refused, counted from 1.
  JournalLines WithoutValue(int n) const {
    return When("value " + std::to_string(n) + " is not taken", [n](Stage& stage) {
      stage.scene().Faults().RefuseQuery(static_cast<std::size_t>(n));
    });
  }
  JournalLines WithoutInstance(int n) const {
    return When("instance " + std::to_string(n) + " is not made",
                [n](Stage& stage) { stage.refusing.RefuseInstance(n); });
  }
  JournalLines WithoutNode(int n) const {
    return When("node " + std::to_string(n) + " is not made",
                [n](Stage& stage) { stage.refusing.RefuseNode(n); });
  }

  // The same when the user has cancelled at the n-th time that he is asked.
  JournalLines CancelledAt(int n) const {
    return When("cancelled at query " + std::to_string(n),
                [n](Stage& stage) { stage.application.cancellation().AtQuery(n); });
  }
};

}  // namespace test
