#include <gtest/gtest.h>

#include <QApplication>
#include <optional>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  std::optional<QApplication> application;
  // The tests can be listed where there is no platform to open windows on.
  if (!GTEST_FLAG_GET(list_tests)) application.emplace(argc, argv);
  return RUN_ALL_TESTS();
}
