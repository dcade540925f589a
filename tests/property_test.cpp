// Every property as a test of its own, and the rows by hand of each family as one.
#include "support/property.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace tarn::test {
namespace {

class Holds : public testing::Test {
  public:
    explicit Holds(const Property& property) : property_(property) {}

    void TestBody() override {
        for (Gen& gen : Seeds(property_.runs)) {
            const std::string difference = Difference(property_.draw(gen));
            if (!difference.empty()) FAIL() << gen.Reproducer(property_.name, difference);
        }
    }

  private:
    const Property& property_;
};

class AllHold : public testing::Test {
  public:
    explicit AllHold(const Family& family) : family_(family) {}

    void TestBody() override {
        for (const Case& known : family_.known()) {
            EXPECT_EQ(Difference(known), "") << known.Name();
        }
    }

  private:
    const Family& family_;
};

// The name without the prefix that all exports share.
std::string TestName(const Property& property) {
    std::string name = property.name.substr(property.name.find('_') + 1);
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}

template <class Test, class Tested>
void Register(const std::string& suite, const std::string& name, const Tested& tested) {
    testing::RegisterTest(suite.c_str(), name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                          [&tested]() -> testing::Test* { return new Test(tested); });
}

const bool isRegistered = [] {
    for (const Family& family : AllFamilies()) {
        for (const Property& property : family.random) {
            Register<Holds>(family.name, TestName(property), property);
        }
        if (family.known != nullptr) Register<AllHold>(family.name, "KnownResults", family);
    }
    return true;
}();

// The text buffer itself, and what is no function, have tests of their own.
TEST(Properties, CoverEveryExport) {
    std::set<std::string> missing = {
#define TARN_EXPORT(name) #name,
#include "exports.inc"
#undef TARN_EXPORT
    };
    EXPECT_EQ(missing.erase("tarn_GetGlobalBuffer"), 1U);
    std::erase_if(missing, [](const std::string& name) {
        return !name.starts_with("tarn_") || name.ends_with("Register") || name.ends_with("LUT");
    });
    EXPECT_EQ(missing.size(), 158U);
    for (const Family& family : AllFamilies()) {
        for (const Property& property : family.random) {
            missing.erase(property.name);
        }
    }
    EXPECT_EQ(missing, std::set<std::string>());
}

}  // namespace
}  // namespace tarn::test
