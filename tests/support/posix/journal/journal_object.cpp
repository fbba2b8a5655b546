#include "tests/support/posix/journal/journal_object.h"

namespace test {

int JournalObject::AskedIndex(int i) {
  const int own = own_.GetParamBlockIndex(i);
  const int index = own < 0 ? own : own + kIndexElsewhere;
  journal_.Note(name_, " index of parameter ", i, "? ", index);
  return index;
}

bool JournalObject::PrimitiveParameters::SetValue(int index, TimeValue time, float value) {
  object_.journal_.Note(object_.name_, " index ", index, " = float ", value, " at ", time);
  return object_.own_.GetParamBlock()->SetValue(index - kIndexElsewhere, time, value);
}

bool JournalObject::PrimitiveParameters::SetValue(int index, TimeValue time, int value) {
  object_.journal_.Note(object_.name_, " index ", index, " = int ", value, " at ", time);
  return object_.own_.GetParamBlock()->SetValue(index - kIndexElsewhere, time, value);
}

bool JournalObject::BoneParameters::SetValue(int index, TimeValue time, float value) {
  object_.journal_.Note(object_.name_, " parameter ", index, " = ", value, " at ", time);
  return object_.own_.GetFirstParameterBlock()->SetValue(index, time, value);
}

float JournalObject::BoneParameters::GetFloat(int index, TimeValue time) {
  const float value = object_.own_.GetFirstParameterBlock()->GetFloat(index, time);
  object_.journal_.Note(object_.name_, " parameter ", index, " at ", time, "? ", value);
  return value;
}

}  // namespace test
