#pragma once

// The names of the members in the record of a kept scene, for who writes it and who reads it.

namespace host::gltf::field {

// Of the extras of the file's asset: the names of the extensions that were left out.
inline constexpr char kLeftOut[] = "leftOut";

// Of the extension.
inline constexpr char kVersion[] = "version";
inline constexpr char kScene[] = "scene";
inline constexpr char kTicks[] = "ticks";  // of a controller too
inline constexpr char kVectors[] = "vectors";
inline constexpr char kRotations[] = "rotations";
inline constexpr char kAngles[] = "angles";

// Of the scene.
inline constexpr char kFrameRate[] = "frameRate";
inline constexpr char kRange[] = "range";
inline constexpr char kTime[] = "time";
inline constexpr char kMillimetersPerUnit[] = "millimetersPerUnit";
inline constexpr char kAnimateMode[] = "animateMode";
inline constexpr char kSetKeyMode[] = "setKeyMode";
inline constexpr char kSelection[] = "selection";
inline constexpr char kRoot[] = "root";
inline constexpr char kRecording[] = "recording";

// Of a recording.
inline constexpr char kRate[] = "rate";
inline constexpr char kFirstFrame[] = "firstFrame";
inline constexpr char kUnit[] = "unit";
inline constexpr char kSource[] = "source";
inline constexpr char kTurnedUp[] = "turnedUp";

// Of a mode.
inline constexpr char kOn[] = "on";
inline constexpr char kRemembered[] = "remembered";
inline constexpr char kUnmatchedResumes[] = "unmatchedResumes";

// Of every node, the root included.
inline constexpr char kName[] = "name";
inline constexpr char kColor[] = "color";
inline constexpr char kBoneDisplay[] = "boneDisplay";
inline constexpr char kBoneSince[] = "boneSince";
inline constexpr char kObjectOffset[] = "objectOffset";
inline constexpr char kProperties[] = "properties";

// Of a property.
inline constexpr char kKey[] = "key";
inline constexpr char kValue[] = "value";

// Of every node but the root.
inline constexpr char kParent[] = "parent";
inline constexpr char kObject[] = "object";
inline constexpr char kTransformClass[] = "transformClass";
inline constexpr char kPosition[] = "position";
inline constexpr char kRotation[] = "rotation";
inline constexpr char kScale[] = "scale";

inline constexpr char kMeasurement[] = "measurement";

// Of a measurement.
inline constexpr char kMadeByImport[] = "madeByImport";
inline constexpr char kManner[] = "manner";
inline constexpr char kGaps[] = "gaps";

// Of an object or a controller.
inline constexpr char kSuperClass[] = "superClass";
inline constexpr char kClass[] = "class";
inline constexpr char kParameters[] = "parameters";
inline constexpr char kKind[] = "kind";
inline constexpr char kConstant[] = "constant";
inline constexpr char kKeys[] = "keys";

// Behind the name of a text's member when the text is bytes in hexadecimal.
inline constexpr char kBytes[] = "Bytes";

}  // namespace host::gltf::field
