#pragma once

#include <deque>
#include <unordered_map>
#include <utility>
#include <vector>

#include "tables/Text.h"

namespace ORXKMPrintProp::host {

/// Two states of something; null where it has only the other one.
template <class Ref>
struct PairOf {
  Ref before;
  Ref after;
};

/// What has the same key on both sides belongs together, the first with the first and so on. The pairs stand in the
/// order of `after`; behind them stands what is only in `before`.
/// @param keyOf takes a `Ref` and gives a Text.
template <class Ref, class KeyOf>
std::vector<PairOf<Ref>> Paired(const std::vector<Ref>& before, const std::vector<Ref>& after, KeyOf keyOf) {
  std::unordered_map<Text, std::deque<Ref>> byKey;
  for (const Ref& ref : before) byKey[keyOf(ref)].push_back(ref);
  std::vector<PairOf<Ref>> pairs;
  for (const Ref& ref : after) {
    auto& refs = byKey[keyOf(ref)];
    pairs.push_back({refs.empty() ? Ref() : refs.front(), ref});
    if (!refs.empty()) refs.pop_front();
  }
  for (const Ref& ref : before) {
    auto& refs = byKey[keyOf(ref)];
    if (refs.empty() || refs.front() != ref) continue;
    refs.pop_front();
    pairs.push_back({ref, Ref()});
  }
  return pairs;
}

}  // namespace ORXKMPrintProp::host
