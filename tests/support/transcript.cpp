#include "support/transcript.h"

#include <gtest/gtest.h>

#include <fstream>
#include <vector>

#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::test {

std::string Player::Play(const std::string& line) {
  ForEach(line, "; ", [this](const std::string& step) {
    try {
      Do(step);
    } catch (const RunTimeError& error) {
      Tell("error (" + std::string(NameOf(error.Kind())) + "): " + ToAscii(error.Message()));
    }
  });
  const Shown before = std::exchange(shown_, {State()});
  for (const auto& [name, text] : shown_.lines) {
    const auto former = before.lines.find(name);
    const bool isNew = !before.startsAnew && (former == before.lines.end() || former->second != text);
    const bool isTold = watched_.empty() ? !aside_.contains(name) : watched_.contains(name);
    if (isNew && isTold) Tell(name + ": " + text);
  }
  return std::exchange(told_, "");
}

void Player::Do(const std::string& step) {
  const std::string rest = step.substr(std::min(step.find(' ') + 1, step.size()));
  if (step.starts_with("see ")) {
    Tell(rest + ": " + State()[rest]);
  } else if (step.starts_with("watch ")) {
    ForEach(rest, ", ", [this](const std::string& name) { watched_.insert(name); });
  } else {
    DoStep(step);
  }
}

bool Player::DoOneOf(const Steps& steps, const std::string& verb) {
  const auto found = steps.find(verb);
  if (found != steps.end()) found->second();
  return found != steps.end();
}

void Player::Tell(std::string line) {
  while (line.size() > 116) {
    const std::size_t end = line.rfind(' ', 116);
    told_ += "  " + line.substr(0, end) + "\n";
    line = "  " + line.substr(end + 1);
  }
  told_ += "  " + line + "\n";
}

std::string OutcomeOf(const std::function<std::string()>& action) {
  try {
    return action();
  } catch (const RunTimeError& error) {
    return NameOf(error.Kind());
  }
}

void PlayTranscript(const std::string& path, const std::function<std::unique_ptr<Player>()>& enter) {
  std::ifstream file(path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  const auto isScene = [](const std::string& line) { return line.starts_with("= "); };
  const auto first = std::find_if(lines.begin(), lines.end(), isScene);
  ASSERT_NE(first, lines.end()) << path;

  for (auto scene = first; scene != lines.end();) {
    const auto player = enter();
    const auto play = [&](auto line, auto end) {
      while (line != end) {
        const auto action = line++;
        if (action->starts_with("#")) continue;
        std::string expected;
        for (; line != end && line->starts_with("  "); ++line) expected += *line + "\n";
        EXPECT_EQ(player->Play(*action), expected)
            << path << ":" << action - lines.begin() + 1 << ": " << *scene << "\n"
            << *action;
      }
    };
    const auto next = std::find_if(scene + 1, lines.end(), isScene);
    play(lines.begin(), first);
    play(scene + 1, next);
    scene = next;
  }
}

}  // namespace ORXKMPrintProp::test
