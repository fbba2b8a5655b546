#include "tests/support/posix/journal/journal_controller.h"

#include "tests/support/posix/journal/journal_scene.h"

namespace test {

void JournalController::Delete() {
  scene_.journal().Note(Name(), " delete");
  own_.Delete();
}

Control* JournalController::GetPositionController() {
  return scene_.Shown(own_.GetPositionController(), *owner_, "position");
}

Control* JournalController::GetRotationController() {
  return scene_.Shown(own_.GetRotationController(), *owner_, "rotation");
}

bool JournalController::SetRotationController(Control* rotation) {
  const std::string installed = static_cast<JournalController*>(rotation)->Name();
  const bool taken = own_.SetRotationController(OwnOf(rotation));
  scene_.journal().Note(Name(), " take the ", installed, " for the rotation: ", taken);
  return taken;
}

int JournalController::CanAcceptValue() {
  const int answer = own_.CanAcceptValue();
  scene_.journal().Note(Name(), " takes a value? ", answer != 0);
  return answer;
}

// A rotation controller is told by its super class, since the host has one for every part.
void JournalController::SetValue(TimeValue time, const void* value, int commit, SetMethod method) {
  const bool is_rotation = own_.SuperClassID() == kRotationControllerSuperClass;
  const std::string shown = is_rotation ? Shown(*static_cast<const Quat*>(value))
                                        : Shown(*static_cast<const Point3*>(value));
  scene_.journal().Note(Name(), " = ", shown, " at ", time, ", commit ", commit, ", ", method);
  own_.SetValue(time, value, commit, method);
}

void JournalController::DeleteKeyAt(TimeValue time) {
  scene_.journal().NoteDeletedKey(Name(), time);
  own_.DeleteKeyAt(time);
}

void JournalController::CopyFrom(Control* source) {
  scene_.journal().Note(Name(), " copy ", static_cast<JournalController*>(source)->Name());
  own_.CopyFrom(OwnOf(source));
}

std::string JournalController::Name() const {
  return owner_ == nullptr ? name_ : NodeName(*owner_) + "." + name_;
}

}  // namespace test
