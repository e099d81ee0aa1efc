#include <gtest/gtest.h>

#include <QApplication>

namespace {

/// The tests share one application without a screen.
class Offscreen : public ::testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(argc_, argv_);
  }
  void TearDown() override { application_.reset(); }

 private:
  char name_[9] = "test_app";
  char* argv_[2] = {name_, nullptr};
  int argc_ = 1;
  std::unique_ptr<QApplication> application_;
};

const ::testing::Environment* const offscreen = ::testing::AddGlobalTestEnvironment(new Offscreen);

}  // namespace
