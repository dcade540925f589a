// The arrays that the library under test holds, seen from outside it.
#ifndef TARN_TESTS_SUPPORT_WATCHED_STORAGE_H
#define TARN_TESTS_SUPPORT_WATCHED_STORAGE_H

#include <cstddef>

#include "support/platform.h"

namespace tarn::test {

// For once after the library was loaded.
void WatchStorageOf(const LoadedLibrary& library);

// 0 where no array lives at the address.
std::size_t CapacityOf(const void* address);

// The library gets no larger arrays.
extern std::size_t mostBytes;

#if !defined(_WIN32)
std::size_t LiveArrayCount();
#endif

}  // namespace tarn::test

#endif  // TARN_TESTS_SUPPORT_WATCHED_STORAGE_H
