#pragma once

#include <chrono>
#include <cstddef>
#include <iosfwd>
#include <string_view>

namespace ORXKMPrintProp::host {

/// A line at the bottom of a terminal that tells how far the work has come. It is not there before the work takes a
/// while, and is written anew now and then only.
class ProgressLine {
 public:
  using Clock = std::chrono::steady_clock;

  /// @param terminal null for none, where nothing is shown; must outlive the line.
  explicit ProgressLine(std::ostream* terminal, Clock::duration interval = std::chrono::milliseconds(200));
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  ~ProgressLine() { Wipe(); }

  /// @param words plain ASCII.
  void Show(std::string_view words);
  /// Makes room for what is printed.
  void Wipe();

 private:
  std::ostream* terminal_;
  Clock::duration interval_;
  Clock::time_point shown_ = Clock::now();
  std::size_t width_ = 0;
};

}  // namespace ORXKMPrintProp::host
