// Values as text.
#ifndef TARNCALC_FORMAT_H
#define TARNCALC_FORMAT_H

#include <string>

#include "radix.h"
#include "value.h"

namespace tarncalc {

/** The value as a Verilog literal that reads back as the same value. A decimal value below zero is
 *  a minus and the literal of the magnitude. Where digits of the radix can't show which bits are
 *  x or z, the literal is binary. Infinite reals and those that are no number have no literal: they
 *  are "inf", "-inf" and "nan". */
std::string FormatValue(const Value& value, const Radix& radix);

}  // namespace tarncalc

#endif
