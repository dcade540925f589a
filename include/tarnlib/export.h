/** @file
 *  Macros that the declarations of the interface need. */
#ifndef TARNLIB_EXPORT_H
#define TARNLIB_EXPORT_H

/** Makes a declaration part of the library's interface. */
#if defined(_WIN32)
#if defined(TARNLIB_BUILDING)
#define TARNLIB_API __declspec(dllexport)
#else
#define TARNLIB_API __declspec(dllimport)
#endif
#else
#define TARNLIB_API __attribute__((visibility("default")))
#endif

/** Marks a function that never lets an exception through; nothing in C. */
#ifdef __cplusplus
#define TARNLIB_NOEXCEPT noexcept
#define TARNLIB_BEGIN_C extern "C" {
#define TARNLIB_END_C }
#else
#define TARNLIB_NOEXCEPT
#define TARNLIB_BEGIN_C
#define TARNLIB_END_C
#endif

#endif
