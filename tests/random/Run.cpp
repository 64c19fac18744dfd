#include "Run.h"

#include <algorithm>
#include <cstddef>
#include <memory>

#include "RandomUser.h"
#include "Scene.h"
#include "support/table_text.h"

namespace ORXKMPrintProp::test {
namespace {

constexpr int kActionsOfScene = 300;

std::string CheckOf(const std::string& words) { return words.substr(0, words.find(':')); }

std::optional<Failure> Replay(const std::vector<Action>& script) {
  Scene scene;
  for (std::size_t i = 0; i < script.size(); ++i) {
    if (std::string words = scene.Do(script[i]); !words.empty()) {
      return Failure{
          static_cast<int>(i) + 1, words, {script.begin(), script.begin() + static_cast<std::ptrdiff_t>(i) + 1}};
    }
  }
  return {};
}

/// The same check fails without what has been left out.
bool FailsAlike(Failure& failure, const std::vector<Action>& script) {
  const auto again = Replay(script);
  if (!again || CheckOf(again->words) != CheckOf(failure.words)) return false;
  failure = {failure.step, again->words, again->script};
  return true;
}

bool DropActions(Failure& failure, std::size_t count) {
  bool dropped = false;
  for (std::size_t at = failure.script.size(); at >= count; --at) {
    if (at > failure.script.size()) continue;
    std::vector<Action> script = failure.script;
    const auto last = script.begin() + static_cast<std::ptrdiff_t>(at);
    script.erase(last - static_cast<std::ptrdiff_t>(count), last);
    dropped = FailsAlike(failure, script) || dropped;
  }
  return dropped;
}

bool DropCalls(Failure& failure, std::vector<Action> Action::*calls) {
  bool dropped = false;
  for (std::size_t i = 0; i < failure.script.size(); ++i) {
    for (std::size_t call = 0; i < failure.script.size() && call < (failure.script[i].*calls).size(); ++call) {
      std::vector<Action> script = failure.script;
      auto& all = script[i].*calls;
      all.erase(all.begin() + static_cast<std::ptrdiff_t>(call));
      dropped = FailsAlike(failure, script) || dropped;
    }
  }
  return dropped;
}

/// Smaller settings in the place of those that a load brings.
bool ShrinkLoads(Failure& failure) {
  bool shrunk = false;
  for (std::size_t i = 0; i < failure.script.size(); ++i) {
    const auto tryAll = [&](auto loadOf) {
      for (int most = 0; i < failure.script.size() && most < loadOf(failure.script).most; ++most) {
        std::vector<Action> script = failure.script;
        loadOf(script).most = most;
        shrunk = FailsAlike(failure, script) || shrunk;
      }
    };
    tryAll([i](std::vector<Action>& script) -> LoadPlan& { return script[i].load; });
    for (std::size_t call = 0; i < failure.script.size() && call < failure.script[i].inEvents.size(); ++call) {
      tryAll([i, call](std::vector<Action>& script) -> LoadPlan& { return script[i].inEvents[call].load; });
    }
  }
  return shrunk;
}

void AppendSettings(std::string& report, const Action& action) {
  if (action.kind == Action::Kind::Load && action.load.kind != LoadKind::Same) {
    const Settings tables = SettingsOf(action.load).tables;
    report.append("\n").append(NameOf(action.load)).append("\n").append(tables.Brief());
  }
  for (const Action& call : action.midway) AppendSettings(report, call);
  for (const Action& call : action.inEvents) AppendSettings(report, call);
}

}  // namespace

std::optional<Failure> RunRandomUser(std::uint64_t seed, int actions) {
  RandomUser user(seed);
  std::unique_ptr<Scene> scene;
  std::vector<Action> script;
  for (int step = 1; step <= actions; ++step) {
    if (!scene || script.size() == kActionsOfScene) {
      scene.reset();
      scene = std::make_unique<Scene>();
      script.clear();
    }
    script.push_back(user.Next(*scene));
    if (std::string words = scene->Do(script.back()); !words.empty()) return Failure{step, words, script};
  }
  return {};
}

Failure Shortened(const Failure& failure) {
  Failure shorter = failure;
  for (std::size_t count = shorter.script.size() / 2; count > 0; count /= 2) DropActions(shorter, count);
  while (DropActions(shorter, 1) || DropCalls(shorter, &Action::inEvents) || DropCalls(shorter, &Action::midway) ||
         ShrinkLoads(shorter)) {
  }
  return shorter;
}

std::string Report(std::uint64_t seed, const Failure& failure) {
  const Failure shorter = Shortened(failure);
  std::string report = "seed " + std::to_string(seed) + ", action " + std::to_string(failure.step) + ": " +
                       failure.words + "\n\nThe last actions:\n";
  const std::size_t first = failure.script.size() - std::min<std::size_t>(failure.script.size(), 12);
  for (std::size_t i = first; i < failure.script.size(); ++i) report += WordsOf(failure.script[i]) + "\n";
  report += "\nIt takes no more than these: " + shorter.words + "\n";
  for (const Action& action : shorter.script) report += WordsOf(action) + "\n";
  for (const Action& action : shorter.script) AppendSettings(report, action);
  return report;
}

}  // namespace ORXKMPrintProp::test
