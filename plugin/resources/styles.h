/* The system's style bits that the dialogs use, and the host's own window class, for the resource
   compiler alone. */
#pragma once

#define DS_MODALFRAME 0x80
#define DS_SHELLFONT 0x48
#define DS_CENTER 0x0800
#define WS_POPUP 0x80000000
#define WS_CHILD 0x40000000
#define WS_VISIBLE 0x10000000
#define WS_CAPTION 0x00C00000
#define WS_SYSMENU 0x00080000
#define WS_GROUP 0x00020000
#define WS_TABSTOP 0x00010000
#define ES_AUTOHSCROLL 0x0080
#define ES_READONLY 0x0800
#define SS_BITMAP 0x000E

/* The window class of the host's own edit control. */
#define HOST_EDIT_CLASS "SkelderEdit"
