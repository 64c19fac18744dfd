#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "RandomSettings.h"
#include "control/SharedValues.h"

namespace ORXKMPrintProp::test {

/// A user and a host who do to a control anything that one can do, mostly what is not refused, and look after each
/// action at what must always hold.
class RandomUser : private View, private ORXQueryPrnPropEvents {
 public:
  explicit RandomUser(std::uint64_t seed);
  ~RandomUser() override;

  /// Acts once. @return what is wrong then; empty when all is well.
  std::string Act();
  /// What has been done, a line each, in the words of the transcripts; what has no word there as a remark.
  const std::string& Script() const { return script_; }

 private:
  struct Order {
    int page = 0;   ///< 0 for none
    int owner = 0;  ///< the characteristic of its attributes, the structure of its elements
    std::vector<int> print;
  };

  void UserActs();
  void ActOn(Widget& widget);
  /// Logs it, too.
  Refusal Do(const std::string& step);
  Refusal Use(Widget& widget, const std::string& name);
  Refusal UseBox(TextBox& box, const std::string& name);
  Refusal UseList(ListBox& list, const std::string& name);
  void HostActs(const std::string& when);
  void MaybeHostActs(const std::string& when);
  void Load();
  void Read(bool isMidway);
  void SetLayout();

  void Check();
  void CheckLists(int page);
  void CheckSelectors();
  void CheckStored(const Order& order);
  void Fail(const std::string& words);

  Dialog& GetDialog() { return control_.GetDialog(); }
  ListBox& List(TextView name, int page) { return GetDialog().Get<ListBox>(name, static_cast<std::int16_t>(page)); }
  /// The pages show the model that the program has.
  bool IsFresh() const { return gPrnProp && filledFrom_.lock() == gPrnProp; }
  int OwnerOn(int page);
  std::vector<std::shared_ptr<const PrnItemCls>> Items(int page, int owner);
  Order OrderOnTop();
  bool IsOrdered();
  /// Behind a blank; one in a while that is not there.
  std::string Entry(const EntryWidget& widget);
  /// All that can be seen, and what the model would write.
  std::string Dump();
  /// What the model would write but for the order, for the items that the pages show and for the General page on top:
  /// a commit leaves it alone.
  std::string Unshown();
  void Log(const std::string& words) { script_ += "\n" + when_ + words; }

  void EntriesCleared(EntryWidget& widget) override;
  void MsgBox(const Text& text, const Text& title) override;
  void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) override;
  void ORXOrderChanged() override;

  Random random_;
  ORXQueryPrnProp control_;
  std::optional<Settings> tables_;  ///< that the control holds
  std::weak_ptr<PrnPropCls> filledFrom_;
  int attrOwner_ = 0;
  bool readOnly_ = false;
  int hostCalls_ = 0;
  int depth_ = 0;  ///< of events in which the host acts
  std::string failure_;
  std::string when_;  ///< ahead of what is logged: where in another action it happens
  std::string script_;
};

}  // namespace ORXKMPrintProp::test
