#pragma once

namespace cli {

// The controls of the dialogs "ImportHTR" and "ImportTRC", by their ids.
enum ImportControl : int {
  kBasePosition = 1017,
  kEndEffectors = 1019,
  kEuler = 1051,
  kTcb = 1052,
  kAnimation = 1063,
  kFrom = 1065,
  kTo = 1066,
  kAll = 1067,
  kRange = 1068,
  kCreate = 1085,
  kApply = 1086,
  kGlobalScale = 1088,
  kOffset = 1089,
  kSize = 1104,
  kSetFrameRate = 1140,
  kSphere = 1141,
  kPoint = 1142,
  kSelectedOnly = 1143,
  kRootNode = 1144
};

}  // namespace cli
