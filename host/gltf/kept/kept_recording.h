#pragma once

#include <nlohmann/json.hpp>

#include "host/gltf/file/json_field.h"
#include "host/scene/measured.h"
#include "host/scene/recording.h"

// What a kept scene tells of the recording behind it, and each node of its measurement.

namespace host::gltf {

nlohmann::json RecordingRecord(const Recording& recording);
nlohmann::json MeasurementRecord(const Measured& measured);

// The same back. Throw a Refusal when the record is none of these.
Recording RecordingIn(const JsonField& record);
Measured MeasurementIn(const JsonField& record);

}  // namespace host::gltf
