// What a call alone costs: nothing done, through a shared library, with as many arguments as the
// exports of most operators have.
#ifndef TARN_BENCH_FLOOR_H
#define TARN_BENCH_FLOOR_H

namespace tarn::bench {

void FloorCall(int resultWidth, void* result, int aWidth, const void* a, int bWidth,
               const void* b) noexcept;

}  // namespace tarn::bench

#endif  // TARN_BENCH_FLOOR_H
