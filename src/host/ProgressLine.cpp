#include "host/ProgressLine.h"

#include <ostream>
#include <string>
#include <utility>

namespace ORXKMPrintProp::host {

ProgressLine::ProgressLine(std::ostream* terminal, Clock::duration interval)
    : terminal_(terminal), interval_(interval) {}

void ProgressLine::Show(std::string_view words) {
  if (!terminal_ || Clock::now() - shown_ < interval_) return;
  Wipe();
  *terminal_ << words << std::flush;
  width_ = words.size();
  shown_ = Clock::now();
}

void ProgressLine::Wipe() {
  if (width_ == 0) return;
  // Not every terminal understands more than this.
  *terminal_ << '\r' + std::string(std::exchange(width_, 0), ' ') + '\r' << std::flush;
}

}  // namespace ORXKMPrintProp::host
