/* The numbers of the resources in OrvaneFileIO.rc: strings, dialogs and their controls. The
   resource compiler reads this file too, so it holds plain definitions only. A control that does
   the same in several dialogs has the same number in all of them. */
#pragma once

/* What the product says about itself, in its resources and to the host. The version is not here: it
   comes from the project's. */
#define ORVANE_COPYRIGHT "Copyright (c) 2026 The OrvaneFileIO authors"

/* String table. */
#define IDS_LIBRARY_DESCRIPTION 1
#define IDS_CATEGORY 2
#define IDS_UTILITY_NAME 3
#define IDS_UTILITY_OPTIONS 4
#define IDS_SELECT_MAPPING_FILE 5
#define IDS_CONVERT_TRC_TO_BVK 6
#define IDS_HTR_FILES 11
#define IDS_TRC_FILES 13
#define IDS_IMPORT_HTR_OPTIONS 22
#define IDS_EXPORT_HTR_OPTIONS 23
#define IDS_IMPORT_TRC_OPTIONS 24
#define IDS_IMPORT_HTR 29
#define IDS_EXPORT_HTR 31
#define IDS_IMPORT_TRC 32
#define IDS_UTILITIES 33
#define IDS_MNM_FILES 34
#define IDS_BVK_FILES 35

/* Dialogs and bitmaps. */
#define IDD_IMPORT_HTR 107
#define IDD_IMPORT_TRC 108
#define IDB_ABOUT 112
#define IDD_ABOUT 114
#define IDD_UTILITIES 116
#define IDD_MAPPING_CREATOR 117
#define IDD_EXPORT_HTR 126

/* Controls of every dialog. */
#define IDC_OK 1097
#define IDC_CANCEL 1098

/* Asks for the About dialog. No options dialog shows it, but they answer it. */
#define IDC_ABOUT 1103

/* Controls of the options of the importers, some of them the exporter's too. */
#define IDC_BASE_POSITION 1017
#define IDC_END_EFFECTORS 1019
#define IDC_SPARE 1023 /* in no dialog */
#define IDC_EULER 1051
#define IDC_TCB 1052
#define IDC_ANIMATION 1063
#define IDC_FROM 1065
#define IDC_TO 1066
#define IDC_ALL 1067
#define IDC_RANGE 1068
#define IDC_CREATE 1085
#define IDC_APPLY 1086
#define IDC_GLOBAL_SCALE 1088
#define IDC_OFFSET 1089
#define IDC_OBJECT_SIZE 1104
#define IDC_SET_FRAME_RATE 1140
#define IDC_SPHERE 1141
#define IDC_POINT 1142
#define IDC_SELECTED_ONLY 1143
#define IDC_ROOT_NODE 1144

/* Controls of the utility panel. */
#define IDC_TRC_SPACE 1124
#define IDC_SKELDER_SPACE 1125
#define IDC_BROWSE_MAPPING 1132
#define IDC_BROWSE_OUTPUT 1134
#define IDC_MAPPING_FILE 1137
#define IDC_OUTPUT_FOLDER 1138
#define IDC_CONVERT 1200
#define IDC_BATCH 1201
#define IDC_TRC_NAME 1202
#define IDC_CREATE_MAPPING 1203
#define IDC_FILTER 1204
#define IDC_ENABLE_OFFSET 1205
#define IDC_OFFSET_X 1206
#define IDC_OFFSET_Y 1207
#define IDC_OFFSET_Z 1208

/* Controls of the mapping creator. */
#define IDC_MARKER_DESCRIPTION 1151
#define IDC_BACK 1152
#define IDC_SKIP 1153
#define IDC_ABORT 1154

/* Controls of the options of the HTR exporter. */
#define IDC_SLIDER 1067
#define IDC_EXPORT_ANIMATION 1105
#define IDC_SAVED_POSE 1106
#define IDC_CURRENT_POSE 1107
#define IDC_PARENT_TRANSFORMS 1109
