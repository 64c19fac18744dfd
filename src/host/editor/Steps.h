#pragma once

#include <cstddef>
#include <deque>
#include <string>

#include "host/editor/EditedSettings.h"
#include "host/editor/Notes.h"
#include "host/editor/PageContent.h"

namespace ORXKMPrintProp::host {

/// The settings at one time, and what the user saw of them. The tables are those that were read last; what has been
/// stored since and what stands in the fields is in the page.
struct Moment {
  HostSettings host;
  PageContentRef page;
  Notes notes = {};
  int number = 0;      ///< another one after each change of a setting
  int readNumber = 0;  ///< that of the settings that the tables hold
};

/// What the user has changed at one go.
struct Step {
  Moment before;
  Moment after;
  const Widget* widget = nullptr;  ///< that he has used, none for what he has done outside the dialog
  std::string name;                ///< what has changed, in the words of the dialog
};

/// The user's steps, of which he has taken back some of the last ones.
class Steps {
 public:
  /// The oldest go when there are more.
  static constexpr std::size_t kMost = 100;

  /// Those that were taken back are gone then.
  void Add(Step step) {
    steps_.resize(done_);
    steps_.push_back(std::move(step));
    if (steps_.size() > kMost) steps_.pop_front();
    done_ = steps_.size();
  }
  /// As if the last one had not been.
  void Drop() {
    steps_.pop_back();
    --done_;
  }
  Step& Last() { return steps_.back(); }

  /// None where there is nothing to be undone, or done again.
  const Step* ToUndo() const { return done_ > 0 ? &steps_[done_ - 1] : nullptr; }
  const Step* ToRedo() const { return done_ < steps_.size() ? &steps_[done_] : nullptr; }
  void Undone() { --done_; }
  void Redone() { ++done_; }

 private:
  std::deque<Step> steps_;
  std::size_t done_ = 0;
};

}  // namespace ORXKMPrintProp::host
