#pragma once

// Marks what a library offers to others; everything else stays hidden. KORVANE_BUILD, KORVANEEX_BUILD
// and LQ_SERVICE_BUILD are defined only while the library itself is compiled.

#if defined(_WIN32)
#define KORVANE_EXPORTED __declspec(dllexport)
#define KORVANE_IMPORTED __declspec(dllimport)
#else
#define KORVANE_EXPORTED __attribute__((visibility("default")))
#define KORVANE_IMPORTED __attribute__((visibility("default")))
#endif

#if defined(KORVANE_BUILD)
#define KORVANE_API KORVANE_EXPORTED
#else
#define KORVANE_API KORVANE_IMPORTED
#endif

#if defined(KORVANEEX_BUILD)
#define KORVANEEX_API KORVANE_EXPORTED
#else
#define KORVANEEX_API KORVANE_IMPORTED
#endif

#if defined(LQ_SERVICE_BUILD)
#define LQ_SERVICE_API KORVANE_EXPORTED
#else
#define LQ_SERVICE_API KORVANE_IMPORTED
#endif
