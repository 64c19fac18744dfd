#include <gtest/gtest.h>

#include <QApplication>
#include <optional>

int main(int argc, char** argv) {
  // Qt speaks, and the system tells what has failed, in the language of whoever runs the tests.
  qputenv("LC_ALL", "C.UTF-8");
  testing::InitGoogleTest(&argc, argv);
  std::optional<QApplication> application;
  // The tests can be listed where there is no platform to open windows on.
  if (!GTEST_FLAG_GET(list_tests)) application.emplace(argc, argv);
  return RUN_ALL_TESTS();
}
