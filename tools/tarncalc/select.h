// Parts of variables: what the brackets behind a name mean.
#ifndef TARNCALC_SELECT_H
#define TARNCALC_SELECT_H

#include <cstdint>
#include <optional>
#include <span>

#include "tree.h"
#include "value.h"
#include "variable.h"

namespace tarncalc {

/** A reference, checked against the declaration of its name. */
struct Selection {
    Variable* variable;
    Part part;
    bool hasElement;  // the first index is that of a memory word
    bool hasBit;      // the last index is that of a bit
    Type type;
    std::int64_t low;  // for kBounds: the place of the lowest bit
};

/** Throws InputError where the brackets don't suit the variable. `constants` are those of the
 *  reference's expression. */
Selection Select(const ReferenceNode& node, Place place, Scope& scope,
                 std::span<const int> constants);

/** The bits that a selection means by its indices. */
struct Field {
    Variable* variable;
    bool isWhole;          // the whole variable or memory word
    bool exists;           // otherwise an index is unknown, or that of no memory word
    std::int64_t element;  // the place of the memory word
    std::int64_t low;      // the place of the lowest bit
    Type type;
};

/** `indices` are the values of the reference's operands. */
Field Locate(const Selection& selection, std::span<Value> indices);

/** Bits outside the variable are X. */
Value Read(const Field& field);

/** Writes a value, converted to the type of the field. Bits outside the variable are left out. */
void Write(const Field& field, Value value);

/** The number that an index or a constant means; none where it is unknown, needs more than
 *  32 bits or is a real. */
std::optional<int> IntegerOf(const Value& value);

}  // namespace tarncalc

#endif
