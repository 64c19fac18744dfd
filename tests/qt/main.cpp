#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace {

/// The tests can be listed where there is no platform to open windows on.
class Application : public testing::Environment {
 public:
  void SetUp() override { application_ = std::make_unique<QApplication>(argc_, argv_); }
  void TearDown() override { application_.reset(); }

 private:
  int argc_ = 1;
  char name_[9] = "qt_tests";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  testing::AddGlobalTestEnvironment(new Application);
  return RUN_ALL_TESTS();
}
