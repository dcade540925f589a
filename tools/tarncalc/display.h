// The tasks that write text.
#ifndef TARNCALC_DISPLAY_H
#define TARNCALC_DISPLAY_H

#include <string>
#include <string_view>

#include "evaluate.h"
#include "statement.h"

namespace tarncalc {

struct TaskRow {
    std::string_view name;
    char letter;  // of the conversion for vectors outside a format
    bool endsLine;
};

/** Null where there is no such task. */
const TaskRow* FindTask(std::string_view name);

/** What a call writes, by the rules of IEEE 1364-2005, 17.1. Throws InputError. */
std::string TextOf(const TaskCall& call, Context& context);

}  // namespace tarncalc

#endif
