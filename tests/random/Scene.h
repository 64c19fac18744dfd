#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Action.h"
#include "Rules.h"
#include "control/SharedValues.h"

namespace ORXKMPrintProp::test {

/// An item of a page by its number and its owner's, which is 0 on the Characteristics page.
struct ItemId {
  int owner = 0;
  int number = 0;
  bool operator==(const ItemId&) const = default;
};

/// The items of an owner on a list page: the characteristics; the attributes of one; the elements of a structure.
std::vector<ItemView> ItemsOf(const PrnPropCls& root, int page, int owner);
/// How many owners the page knows, whose numbers count from 1; one with the number 0 for the characteristics.
std::vector<int> OwnersOf(const PrnPropCls& root, int page);

/// A control with its host, and what the two have to know of each other.
class Desk : private View, private ORXQueryPrnPropEvents {
 public:
  Desk();
  ~Desk() override;

  Dialog& GetDialog() { return control.GetDialog(); }
  const Dialog& GetDialog() const { return const_cast<Desk*>(this)->control.GetDialog(); }
  ListBox& List(TextView name, int index) const { return Find<ListBox>(GetDialog(), name, index); }
  ComboBox& Combo(TextView name) const { return Find<ComboBox>(GetDialog(), name); }
  int Tab() const { return GetDialog().TabStrip().Tab(); }

  /// The pages show the model that the program has.
  bool IsFresh() const { return loaded && gPrnProp && filledFrom.lock() == gPrnProp; }
  /// Whose items the page shows, 0 for none.
  int OwnerOn(int page) const;
  bool ShowsOwner(int page) const { return page == 1 || OwnerOn(page) > 0; }
  /// The one selected print item of the page, with the number 0 for none.
  ItemId ShownOn(int page) const;
  /// The item numbers of a list, in its order.
  static std::vector<int> NumbersIn(const EntryWidget& widget);
  std::vector<ItemView> Items(int page) const;

  /// The positions of the print characteristics ascend in the order of their list.
  bool IsOrdered() const;

  ORXQueryPrnProp control;
  std::function<void()> onEvent = [] {};

  std::optional<Settings> tables;  ///< that the control holds
  bool loaded = false;
  bool readOnly = false;
  bool mixed = false;  ///< another control has changed the model behind the pages
  std::weak_ptr<PrnPropCls> filledFrom;
  std::array<int, 4> clears{};  ///< how often the available list of each page has been emptied
  std::array<int, 4> noted{};   ///< the same when a fill of the pages was last looked for
  int messages = 0;
  int events = 0;
  int switches = 0;  ///< of read-only mode

  GeneralWidgets typed;  ///< what the General page has to show

  struct Notes {
    bool edited = false;         ///< the frame holds input that the model may not have
    bool widthSwitched = false;  ///< a switch of read-only has enabled widths that nothing has shown since
    bool levelSwitched = false;
    bool dragged = false;  ///< the order of the print list has not been stored since a drag
    bool touched = false;  ///< the same of a drag that may have led back to where it began
  };
  std::array<Notes, 4> notes;

 private:
  void EntriesCleared(EntryWidget& widget) override;
  void MsgBox(const Text& text, const Text& title) override;
  void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) override;
  void ORXOrderChanged() override;

  int attrOwner_ = 0;
};

/// Two controls of one program, used by turns.
class Scene {
 public:
  Scene();

  /// Does it and looks at what has come of it.
  /// @return what is wrong, led by the name of the check; empty when all is well.
  std::string Do(const Action& action);

  const Desk& At(int desk) const { return *desks_[static_cast<std::size_t>(desk)]; }
  Desk& At(int desk) { return *desks_[static_cast<std::size_t>(desk)]; }
  const GeneralProps& General() const { return general_; }

  /// All that can be seen: widgets and model, and the tables too if wanted.
  std::string Dump(bool withTables) const;

 private:
  /// @return whether it was done; not when a user is refused.
  bool Perform(const Action& action);
  bool PerformUser(const Action& action, Desk& desk);
  void PerformLoad(const Action& action, Desk& desk);
  void PerformRead(Desk& desk, int table);
  void PerformReadThrice(Desk& desk);
  void PerformLayout(const Action& action, Desk& desk);
  void NoteUser(const Action& action, Desk& desk, int tabBefore, bool wasFresh);
  /// Each time after which the pages may have been filled, and ahead of what another control does.
  void NoteFill(Desk& desk);
  void Fail(const std::string& words);
  template <class Operation>
  void Expect(std::optional<ErrorKind> kind, const std::string& words, Operation operation);

  std::array<std::unique_ptr<Desk>, 2> desks_;
  GeneralProps general_;  ///< what the model has to hold
  std::string failure_;
  int refusals_ = 0;
};

}  // namespace ORXKMPrintProp::test
