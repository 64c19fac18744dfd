#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>

#include "support/user_step.h"

namespace ORXKMPrintProp::test {

/// Who does what a transcript says. A line holds steps, which stand apart by "; ". There is a state of lines with
/// names, and two steps are for it: `see LINE`, and `watch LINE, LINE`, since nothing is told of the others then.
class Player {
 public:
  virtual ~Player() = default;

  /// @return all that comes of a line: what is told meanwhile, and the lines of the state that have changed.
  std::string Play(const std::string& line);

 protected:
  using Lines = std::map<std::string, std::string>;
  using Steps = std::map<std::string, std::function<void()>>;

  /// @param aside the lines of which nothing is told until they are watched.
  explicit Player(std::set<std::string> aside) : aside_(std::move(aside)) {}

  virtual void DoStep(const std::string& step) = 0;
  virtual Lines State() = 0;

  void Do(const std::string& step);
  /// @return whether that is one of these steps.
  static bool DoOneOf(const Steps& steps, const std::string& verb);
  /// Tells a line, in pieces that a page takes; what goes on begins further in.
  void Tell(std::string line);

  struct Shown {
    Lines lines;              ///< of the state, as they have been told
    bool startsAnew = false;  ///< of what changes in this line of steps nothing is told
  };
  Shown shown_;

 private:
  std::set<std::string> aside_;
  std::set<std::string> watched_;
  std::string told_;
};

/// What the action gives, or the kind of its failure.
std::string OutcomeOf(const std::function<std::string()>& action);

/// Plays a transcript again. It has scenes: "= " and what a scene shows, then lines of steps. Those behind such
/// a line that are indented by two blanks say all that comes of it.
/// What stands ahead of the first scene begins each of them; lines with "#" are remarks.
/// @param enter makes the player of a scene, of which there is one at a time.
void PlayTranscript(const std::string& path, const std::function<std::unique_ptr<Player>()>& enter);

}  // namespace ORXKMPrintProp::test
