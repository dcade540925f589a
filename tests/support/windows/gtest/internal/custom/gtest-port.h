// GoogleTest makes this class from C++ threads, which the compiler for Windows does not have; this
// is the place where it takes another one.
#ifndef TARN_TESTS_SUPPORT_WINDOWS_GTEST_PORT_H
#define TARN_TESTS_SUPPORT_WINDOWS_GTEST_PORT_H

#include <atomic>

#define GTEST_HAS_NOTIFICATION_ 1

namespace testing::internal {

class Notification {
  public:
    void Notify() { isNotified_ = true; }
    void WaitForNotification() const {
        while (!isNotified_) {
        }
    }

  private:
    std::atomic<bool> isNotified_ = false;
};

}  // namespace testing::internal

#endif  // TARN_TESTS_SUPPORT_WINDOWS_GTEST_PORT_H
