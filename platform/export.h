#pragma once

// How a name crosses the border of a shared library. The only place of the project that asks which
// system it is compiled for: everything else is chosen by whole files.
//
// SKELDER_API marks what the host library offers. The host itself is compiled with
// SKELDER_BUILDING_HOST defined; everybody else only calls it.
//
// SKELDER_ENTRY marks the entry points that a plug-in module exports to the host.

#if defined(_WIN32)
#if defined(SKELDER_BUILDING_HOST)
#define SKELDER_API __declspec(dllexport)
#else
#define SKELDER_API __declspec(dllimport)
#endif
#define SKELDER_ENTRY __declspec(dllexport)
#else
#define SKELDER_API __attribute__((visibility("default")))
#define SKELDER_ENTRY __attribute__((visibility("default")))
#endif
