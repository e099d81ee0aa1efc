// One application without a display for all tests of this program.

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace {

class Offscreen : public ::testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(argc_, argv_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int argc_ = 1;
  char name_[11] = "test_paper";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] auto* const registered = ::testing::AddGlobalTestEnvironment(new Offscreen);

}  // namespace
