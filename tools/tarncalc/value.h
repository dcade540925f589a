// Four-state values of any width, which own their words.
#ifndef TARNCALC_VALUE_H
#define TARNCALC_VALUE_H

#include <cstdint>
#include <memory>

#include <tarnlib.h>

#include "source.h"

namespace tarncalc {

inline constexpr int kWordBits = 32;

/** Throws InputError where a vector would be wider than any that is calculated with. */
void CheckWidth(std::int64_t width, Place place);

/** A width and a reading of a vector, or the type of reals, with the width of their storage. */
struct Type {
    int width = 0;
    bool isSigned = false;
    bool isReal = false;
};

/** The type of a truth value. */
inline constexpr Type kBitType{1, false};

inline constexpr Type kRealType{64, true, true};

struct Literal;

/** A vector with its type, or a real. Between calls the bits of the top word above the width extend
 *  the value, as the library expects them of an operand. */
class Value {
  public:
    /** All zeros. */
    explicit Value(Type type);

    explicit Value(double real) : type_(kRealType), real_(real) {}

    /** A bit from its LogicCode. */
    static Value OfCode(LogicCode code);

    /** The value of a literal. `isCut` tells whether it is more than its width can hold. */
    Value(const Literal& literal, bool& isCut);

    const Type& GetType() const noexcept { return type_; }
    int Width() const noexcept { return type_.width; }
    bool IsReal() const noexcept { return type_.isReal; }

    /** The number as a real, x and z bits counting as 0. */
    double Real() const noexcept;

    /** Null for a real. */
    const VectorWord* Words() const noexcept { return words_.get(); }

    /** For an operation that writes its result here; RestoreTopWord must follow it. */
    VectorWord* Words() noexcept { return words_.get(); }

    /** Makes the value an operand of the given type: read with the new sign, then extended by it or
     *  cut; rounded where a real becomes a vector. */
    void Convert(Type type);

    /** Makes every bit X. */
    void SetUnknown() noexcept;

    /** Gives the bits above the width what the type says: zeros, or copies of the top bit. */
    void RestoreTopWord() noexcept;

  private:
    Type type_;
    std::unique_ptr<VectorWord[]> words_;
    double real_ = 0;
};

}  // namespace tarncalc

#endif
