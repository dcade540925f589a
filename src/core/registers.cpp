// The exported data: registers for generated code, the tables of logic codes, the data items.
#include <cstdint>

#include <tarnlib/vector.h>

// The compiler may lay out the variables of a file in any order; the data items have a stated one.
// GCC keeps the order of variables that it is told not to move, Clang always keeps that of the
// file; a section of their own keeps everything else from between them.
#if defined(_WIN32)
#define TARN_ITEMS_SECTION ".data$tarn_items"
#else
#define TARN_ITEMS_SECTION ".bss.tarn_items"
#endif
#if defined(__clang__)
#define TARN_DATA_ITEM(name) [[gnu::section(TARN_ITEMS_SECTION)]] std::uint64_t name = 0
#else
#define TARN_DATA_ITEM(name) \
    [[gnu::section(TARN_ITEMS_SECTION), gnu::no_reorder]] std::uint64_t name = 0
#endif

extern "C" {

VectorWord tarn_VectorRegister[TARN_VECTOR_REGISTER_WORDS];
double tarn_RealRegister[5];
float tarn_ShortRealRegister[5];

const VectorWord tarn_LogicVectorLUT[6] = {{0, 0}, {1, 0}, {0, 1}, {1, 1}, {1, 1}, {1, 1}};

const VectorWord tarn_LogicSignedVectorLUT[6] = {
    {0, 0},
    {0xFFFFFFFF, 0},
    {0, 0xFFFFFFFF},
    {0xFFFFFFFF, 0xFFFFFFFF},
    {0xFFFFFFFF, 0xFFFFFFFF},
    {0xFFFFFFFF, 0xFFFFFFFF},
};

TARN_DATA_ITEM(ArrayAEB);
TARN_DATA_ITEM(DirectAEB);
TARN_DATA_ITEM(EventAEB);
TARN_DATA_ITEM(VectorAAIB);
TARN_DATA_ITEM(RealAAIB);
TARN_DATA_ITEM(ShortRealAAIB);
TARN_DATA_ITEM(ArrayAAIB);
TARN_DATA_ITEM(ClassAAIB);
TARN_DATA_ITEM(VectorAEB);
TARN_DATA_ITEM(BitAEB);
TARN_DATA_ITEM(RealAEB);
TARN_DATA_ITEM(ShortRealAEB);
TARN_DATA_ITEM(ClassAEB);

}  // extern "C"
