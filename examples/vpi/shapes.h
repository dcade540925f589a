// The shapes of operations: which exports an operation has, and how its arguments reach them.
//
// A shape is a struct of exports. Its Run is given the arguments of one call, the result first, and
// does what generated code does around a call of the library: it reads the operands as the
// expression does, orders and widens them where the header asks for it, and assigns the result.
//
// Where a shape has two exports, the signed one is called where all operands of the expression are
// signed. The width of the expression is that of its widest operand or of the result, if that is
// wider, as in an assignment.
#ifndef TARN_VPI_SHAPES_H
#define TARN_VPI_SHAPES_H

#include <cstddef>
#include <vector>

#include "value.h"

namespace tarnvpi {

using Arguments = std::vector<vpiHandle>;

// Exports by what they take and return.
using Unary = void(int, VectorWord*, int, const VectorWord*);
using Binary = void(int, VectorWord*, int, const VectorWord*, int, const VectorWord*);
using Step = void(int, VectorWord*);
using Query = int(int, const VectorWord*);
using Comparison = int(int, const VectorWord*, int, const VectorWord*);
using TextOf = char*(int, const VectorWord*, int);
using PaddedTextOf = char*(int, const VectorWord*, int, int);
using Parser = bool(int, VectorWord*, const char*);
using FieldRead = void(VectorWord*, const VectorWord*, unsigned, int);
using SignedFieldRead = void(int, VectorWord*, const VectorWord*, unsigned, int);
using IndexedFieldRead = void(VectorWord*, int, const VectorWord*, int, int);
using BitRead = LogicCode(int, const VectorWord*, int);
using Placement = void(int, VectorWord*, int, const VectorWord*, unsigned);
using ShiftBy = void(int, VectorWord*, int, const VectorWord*, unsigned);
using FieldWrite = void(VectorWord*, const VectorWord*, unsigned, int);
using FieldUpdate = int(VectorWord*, const VectorWord*, unsigned, int);
using IndexedFieldWrite = void(int, VectorWord*, const VectorWord*, int, int);
using IndexedFieldUpdate = int(int, VectorWord*, const VectorWord*, int, int);
using MemoryUnpack = void(int, VectorWord*, int, const uint8_t*, int);
using MemoryRead = void(VectorWord*, int, const uint8_t*, int, int);
using MemoryWrite = void(int, uint8_t*, const VectorWord*, int, int);
using VectorToReal = double(int, const VectorWord*);
using RealToVector = void(int, VectorWord*, double);
using OfReal = void(double*, double);
using OfReals = void(double*, double, double);
using RealToText = char*(const char*, double);
using TextToReal = void(const char*, double*);

/** (result, a): result = OP a */
struct OneOperand {
    static constexpr std::size_t kArguments = 2;
    Unary* forUnsigned;
    Unary* forSigned;
};

/** (result, a, b): result = a OP b */
struct TwoOperands {
    static constexpr std::size_t kArguments = 3;
    Binary* forUnsigned;
    Binary* forSigned;
};

/** (result, a, b): result = a ** b; b keeps its own sign */
struct Power {
    static constexpr std::size_t kArguments = 3;
    Binary* forUnsigned;
    Binary* forUnsignedBySigned;
    Binary* forSigned;
    Binary* forSignedBySigned;
};

/** (v): every bit of v changed in place */
struct InPlace {
    static constexpr std::size_t kArguments = 1;
    Step* change;
};

/** (result, a): result = one bit about a */
struct Reduction {
    static constexpr std::size_t kArguments = 2;
    Query* reduce;
};

/** (result, a, b): result = the bit a OP b */
struct Equality {
    static constexpr std::size_t kArguments = 3;
    Comparison* forUnsigned;
    Comparison* forSigned;
};

/** (result, a, b): result = the bit a OP b, made of the order of the two */
struct Relation {
    static constexpr std::size_t kArguments = 3;
    Comparison* forUnsigned;
    Comparison* forSigned;
    LogicCode ifLess;
    LogicCode ifEqual;
    LogicCode ifGreater;
};

/** (result, a, low, width): result = a[low +: width], a field inside a */
struct Select {
    static constexpr std::size_t kArguments = 4;
    FieldRead* read;
};

/** (result, a, low, width): result = $signed(a[low +: width]), a field inside a */
struct SignedSelect {
    static constexpr std::size_t kArguments = 4;
    SignedFieldRead* read;
};

/** (result, a, index, width): result = a[index +: width] */
struct IndexedSelect {
    static constexpr std::size_t kArguments = 4;
    IndexedFieldRead* read;
};

/** (result, a, index): result = a[index] */
struct BitSelect {
    static constexpr std::size_t kArguments = 3;
    BitRead* read;
};

/** (result, a, b): result = {a, b} */
struct Concatenation {
    static constexpr std::size_t kArguments = 3;
    Placement* place;
};

/** (result, a, amount): result = a OP amount */
struct Shift {
    static constexpr std::size_t kArguments = 3;
    ShiftBy* forUnsigned;
    ShiftBy* forSigned;
};

/** (target, value, low, width): target[low +: width] = value, a field inside the target */
struct SelectAssign {
    static constexpr std::size_t kArguments = 4;
    FieldWrite* write;
};

/** (target, value, index, width): target[index +: width] = value */
struct IndexedSelectAssign {
    static constexpr std::size_t kArguments = 4;
    IndexedFieldWrite* write;
};

/** (changed, target, value, low, width): as SelectAssign; changed = whether a bit changed */
struct SelectUpdate {
    static constexpr std::size_t kArguments = 5;
    FieldUpdate* write;
};

/** (changed, target, value, index, width): as IndexedSelectAssign; changed = whether a bit changed
 */
struct IndexedSelectUpdate {
    static constexpr std::size_t kArguments = 5;
    IndexedFieldUpdate* write;
};

/** (result, a): result = a, by way of a memory word */
struct MemoryCopy {
    static constexpr std::size_t kArguments = 2;
    MemoryUnpack* forUnsigned;
    MemoryUnpack* forSigned;
};

/** (result, a, low, width): result = a[low +: width], where a is in a memory word */
struct MemorySelect {
    static constexpr std::size_t kArguments = 4;
    MemoryRead* read;
    bool isIndexed;
};

/** (target, value, low, width): target[low +: width] = value, where the target is in a memory word;
 *  the export for narrow ones takes up to 32 bits */
struct MemoryAssign {
    static constexpr std::size_t kArguments = 4;
    MemoryWrite* forAny;
    MemoryWrite* forNarrow;
    bool isIndexed;
};

/** (text, a, option): text = a in characters */
struct Text {
    static constexpr std::size_t kArguments = 3;
    TextOf* convert;
};

/** (text, a, least width, whether to pad with zeros): text = a in decimal digits */
struct DecimalText {
    static constexpr std::size_t kArguments = 4;
    PaddedTextOf* forUnsigned;
    PaddedTextOf* forSigned;
};

/** (result, text): result = what the text means */
struct ParseText {
    static constexpr std::size_t kArguments = 2;
    Parser* parse;
};

/** (real, a): real = a */
struct ToReal {
    static constexpr std::size_t kArguments = 2;
    VectorToReal* forUnsigned;
    VectorToReal* forSigned;
};

/** (result, x): result = x, a real */
struct FromReal {
    static constexpr std::size_t kArguments = 2;
    RealToVector* convert;
};

/** (real, x): real = OP(x) */
struct RealFunction {
    static constexpr std::size_t kArguments = 2;
    OfReal* calculate;
};

/** (real, x, y): real = OP(x, y) */
struct RealFunctionOfTwo {
    static constexpr std::size_t kArguments = 3;
    OfReals* calculate;
};

/** (result, a): result = a number about a */
struct IntegerOf {
    static constexpr std::size_t kArguments = 2;
    Query* count;
};

/** (text, format, x): text = x as printf writes it */
struct RealText {
    static constexpr std::size_t kArguments = 3;
    RealToText* convert;
};

/** (real, text): real = the number that the text means */
struct ParseReal {
    static constexpr std::size_t kArguments = 2;
    TextToReal* parse;
};

void Run(const OneOperand& shape, const Arguments& arguments);
void Run(const TwoOperands& shape, const Arguments& arguments);
void Run(const Power& shape, const Arguments& arguments);
void Run(const InPlace& shape, const Arguments& arguments);
void Run(const Reduction& shape, const Arguments& arguments);
void Run(const Equality& shape, const Arguments& arguments);
void Run(const Relation& shape, const Arguments& arguments);
void Run(const Select& shape, const Arguments& arguments);
void Run(const SignedSelect& shape, const Arguments& arguments);
void Run(const IndexedSelect& shape, const Arguments& arguments);
void Run(const BitSelect& shape, const Arguments& arguments);
void Run(const Concatenation& shape, const Arguments& arguments);
void Run(const Shift& shape, const Arguments& arguments);
void Run(const SelectAssign& shape, const Arguments& arguments);
void Run(const IndexedSelectAssign& shape, const Arguments& arguments);
void Run(const SelectUpdate& shape, const Arguments& arguments);
void Run(const IndexedSelectUpdate& shape, const Arguments& arguments);
void Run(const MemoryCopy& shape, const Arguments& arguments);
void Run(const MemorySelect& shape, const Arguments& arguments);
void Run(const MemoryAssign& shape, const Arguments& arguments);
void Run(const Text& shape, const Arguments& arguments);
void Run(const DecimalText& shape, const Arguments& arguments);
void Run(const ParseText& shape, const Arguments& arguments);
void Run(const ToReal& shape, const Arguments& arguments);
void Run(const FromReal& shape, const Arguments& arguments);
void Run(const RealFunction& shape, const Arguments& arguments);
void Run(const RealFunctionOfTwo& shape, const Arguments& arguments);
void Run(const IntegerOf& shape, const Arguments& arguments);
void Run(const RealText& shape, const Arguments& arguments);
void Run(const ParseReal& shape, const Arguments& arguments);

}  // namespace tarnvpi

#endif
