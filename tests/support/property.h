// A row of a table of exports: property tests are written once for all exports of a pattern.
#ifndef TARN_TESTS_SUPPORT_PROPERTY_H
#define TARN_TESTS_SUPPORT_PROPERTY_H

#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "support/call.h"
#include "support/gen.h"

namespace tarn::test {

template <class Function, class Model>
struct Export {
    const char* name;
    Function* function;
    Model* model;

    friend std::ostream& operator<<(std::ostream& out, const Export& row) {
        return out << row.name;
    }
};

// Names the instances of a test after their exports, without the prefix that all share.
inline constexpr auto kExportName = [](const auto& info) {
    const std::string name = info.param.name;
    return name.substr(name.find('_') + 1);
};

}  // namespace tarn::test

#endif  // TARN_TESTS_SUPPORT_PROPERTY_H
