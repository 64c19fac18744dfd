#pragma once

#include "Action.h"
#include "Random.h"
#include "Scene.h"

namespace ORXKMPrintProp::test {

/// A user and a host who do anything that one can do, mostly things that are not refused.
class RandomUser {
 public:
  explicit RandomUser(std::uint64_t seed) : random_(seed) {}

  Action Next(const Scene& scene);

 private:
  Action HostCall(const Scene& scene, int desk);
  void AddHostCalls(const Scene& scene, int desk, std::vector<Action>& calls);
  std::int16_t Entry(const EntryWidget& widget);
  std::size_t WidgetOf(const Desk& desk, WidgetKind kind);
  Text Keys();
  Text Pasted();

  Random random_;
};

}  // namespace ORXKMPrintProp::test
