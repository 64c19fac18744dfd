#include <gtest/gtest.h>

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/SettingsDocument.h"
#include "support/loaded.h"
#include "support/table_text.h"
#include "support/watched_table.h"
#include "support/widget_text.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::test {
namespace {

/// The realistic example under a watch.
struct Realistic : host::SettingsDocument {
  Realistic() : host::SettingsDocument(host::ReadSettings(PRNPROP_EXAMPLES "/sales.json")) {}

  bool LoadInto(ORXQueryPrnProp& control) const {
    watch->calls.clear();
    return control.ORXSetPrnTables(Watched("gen", general, watch), Watched("dim", dimension, watch),
                                   Watched("mem", member, watch), Watched("atr", attribute, watch));
  }

  /// What a load and a read-back give when nothing fails; the tables can be loaded again.
  std::string GoodRound(ORXQueryPrnProp& control) const {
    watch->failAt = 0;
    if (!LoadInto(control) || !control.ORXGenPropTable()) return "did not go through";
    return ToString(*general) + ToString(*dimension) + ToString(*member) + ToString(*attribute);
  }

  /// Lets that operation on the tables fail, 0 for none. @return which the action fails at.
  template <class Action>
  std::string FailingAt(std::size_t operation, Action action) const {
    watch->calls.clear();
    watch->failAt = operation;
    try {
      action();
    } catch (const WatchFailure& error) {
      return ToAscii(error.Message());
    }
    return "none";
  }

  std::shared_ptr<Watch> watch = std::make_shared<Watch>();
};

/// Two sets of tables under one watch, and controls that load them.
struct Nested {
  explicit Nested(const std::string& a, const std::string& b) : first(SetOf(a)), second(SetOf(b)) {}

  struct Set {
    Settings settings;
    TableRef gen, dim, mem, atr;
    bool LoadInto(ORXQueryPrnProp& control) const { return control.ORXSetPrnTables(gen, dim, mem, atr); }
    /// What the tables hold and the control shows.
    std::string State(ORXQueryPrnProp& control) const {
      return settings.Brief() + StateOf(control.GetDialog().Get<ListBox>(u"lstPrint", kCharTab));
    }
  };

  Set SetOf(const std::string& name) const {
    const std::string structure = "IOBJNM='S" + name + "' IOBJTXT='S" + name + "' IS_STRUCTURE='X'";
    const Settings settings("IOBJNM='" + name + "1' AXIS='Y' IOBJPRSNT='0'\nIOBJNM='" + name + "2'\n" + structure,
                            "IOBJNM='" + name + "1' ATTRINM='" + name + "a'\nIOBJNM='" + name + "1'",
                            "IOBJNM='S" + name + "' CHAVL='" + name + "e'", "TITLE='" + name + "'");
    return {settings, Watched("gen", settings.gen, watch), Watched("dim", settings.dim, watch),
            Watched("mem", settings.mem, watch), Watched("atr", settings.atr, watch)};
  }

  /// Does the action with `act` inside its call number `k`. @return how it fails.
  std::string Acting(std::size_t k, std::function<void()> act, const std::function<void()>& action) const {
    watch->calls.clear();
    watch->actAt = k;
    watch->act = std::move(act);
    std::string failure = "none";
    try {
      action();
    } catch (const RunTimeError& error) {
      failure = NameOf(error.Kind());
    }
    watch->actAt = 0;
    return failure;
  }

  /// The load of the first set, or of a control that has it: a read-back, or a click that shows the settings of an
  /// item.
  enum Action { Load, Read, Select };
  std::function<void()> Use(ORXQueryPrnProp& control, Action action) const {
    return [this, &control, action] {
      if (action == Load) first.LoadInto(control);
      if (action == Read) control.ORXDimTable();
      for (int click = 0; action == Select && click < 2; ++click) {
        auto& list = control.GetDialog().Get<ListBox>(u"lstPrint", kCharTab);
        list.UserMouseDown(0, ListBox::kLeftButton);
        list.UserMouseUp(ListBox::kLeftButton);
      }
    };
  }

  std::shared_ptr<Watch> watch = std::make_shared<Watch>();
  Set first, second;
};

/// The page on top takes what is typed, and a read commits it.
void Type(ORXQueryPrnProp& control) {
  for (const TextView box : {u"txtGenPrnTitle", u"txtCharColTitle"}) {
    control.GetDialog().Get<TextBox>(box).UserEdit(u"typed");
  }
}

/// What the tables of a name hold after a load, with that page on top, and a read-back, and the print list that is
/// shown.
std::string Undisturbed(const std::string& name, std::int16_t tab) {
  const Nested nested(name, "x");
  ORXQueryPrnProp control;
  control.GetDialog().TabStrip().UserPick(tab);
  nested.first.LoadInto(control);
  Type(control);
  control.ORXDimTable();
  return nested.first.State(control);
}

TEST(TablesThatCallBack, LoadOtherSettingsWhichStay) {
  const struct {
    Nested::Action action;
    bool inAnother;
  } rows[] = {{Nested::Load, false},
              {Nested::Load, true},
              {Nested::Read, false},
              {Nested::Read, true},
              {Nested::Select, false}};
  for (const auto& row : rows) {
    const std::int16_t tab = row.action == Nested::Select ? kCharTab : kGeneralTab;
    const std::string expected = Undisturbed("b", tab);
    std::size_t k = 1;
    for (bool wasCalled = true; wasCalled; ++k) {
      ReleaseSharedValues();
      const Nested nested("a", "b");
      ORXQueryPrnProp control, other;
      control.ORXControlTexts(
          Watched("texts", TableFrom(Kind::Texts, "TARGETID='ID_PRN_NONE' CAPTION='-'"), nested.watch));
      control.GetDialog().TabStrip().UserPick(tab);
      if (row.action != Nested::Load) nested.first.LoadInto(control);
      ORXQueryPrnProp& inner = row.inAnother ? other : control;
      wasCalled = false;
      const std::string failure = nested.Acting(
          k, [&] { wasCalled = nested.second.LoadInto(inner); }, nested.Use(control, row.action));
      if (!wasCalled) continue;
      ASSERT_EQ(failure, "table") << k;
      Type(inner);
      ASSERT_NE(inner.ORXDimTable(), nullptr);
      ASSERT_EQ(nested.second.State(inner), expected) << k;
      if (row.inAnother && row.action == Nested::Load) {
        ASSERT_EQ(control.ORXDimTable(), nullptr) << "it keeps none of its tables";
      }
    }
    EXPECT_GT(k, row.action == Nested::Select ? 4u : 100u);
  }
  ReleaseSharedValues();
}

TEST(TablesThatCallBack, LookThingsUpInOtherSettingsWithoutHarm) {
  const std::string expected = Undisturbed("a", kGeneralTab);
  bool wasCalled = true;
  for (std::size_t k = 1; wasCalled; k += 10) {
    ReleaseSharedValues();
    const Nested nested("a", "b");
    ORXQueryPrnProp control;
    wasCalled = false;
    const auto lookUp = [&] {
      const SharedValuesGuard guard;
      ORXQueryPrnProp other;
      wasCalled = nested.second.LoadInto(other) && other.ORXDimTable();
    };
    ASSERT_EQ(nested.Acting(k, lookUp, nested.Use(control, Nested::Load)), "none") << k;
    Type(control);
    control.ORXDimTable();
    ASSERT_EQ(nested.first.State(control), expected) << k;
  }
}

TEST(TablesThatCallBack, AreNotReadBackFromInside) {
  const std::string expected = Undisturbed("a", kGeneralTab);
  for (const bool inRead : {false, true}) {
    bool wasCalled = true;
    for (std::size_t k = 1; wasCalled; ++k) {
      ReleaseSharedValues();
      const Nested nested("a", "b");
      ORXQueryPrnProp control, loaded;
      (inRead ? nested.first : nested.second).LoadInto(inRead ? control : loaded);
      wasCalled = false;
      std::string inner = "none";
      const auto readBack = [&] {
        wasCalled = true;
        try {
          (inRead ? control : loaded).ORXMemTable();
        } catch (const RunTimeError& error) {
          inner = NameOf(error.Kind());
        }
      };
      ASSERT_EQ(nested.Acting(k, readBack, nested.Use(control, inRead ? Nested::Read : Nested::Load)), "none");
      ASSERT_EQ(inner, wasCalled ? "table" : "none") << k;
      Type(control);
      control.ORXDimTable();
      ASSERT_EQ(nested.first.State(control), expected) << k;
    }
  }
}

TEST(FailingTables, FailTheCallAndNeverTheNext) {
  Realistic settings;
  ORXQueryPrnProp control;
  const std::string good = settings.GoodRound(control);
  const auto read = [&] { control.ORXDimTable(); };
  int tolerated = 0;
  for (const bool load : {true, false}) {
    const auto action = [&] { load ? void(settings.LoadInto(control)) : read(); };
    settings.FailingAt(0, action);
    const auto calls = settings.watch->calls;
    ASSERT_GT(calls.size(), 1000u);
    settings.FailingAt(0, read);
    for (std::size_t k = 1; k <= calls.size(); ++k) {
      const std::string failed = settings.FailingAt(k, action);
      if (failed == "none") {
        // The look-up of a characteristic's attribute rows tolerates any failure: there are none then.
        ASSERT_TRUE(calls[k - 1].starts_with("dim[") && calls[k - 1].ends_with("].Value(IOBJNM)")) << calls[k - 1];
        ++tolerated;
        settings = Realistic();  // the load has emptied the general table
        continue;
      }
      ASSERT_EQ(failed, calls[k - 1]);
      ASSERT_EQ(settings.watch->calls.size(), k) << "nothing is called behind the failure";
      if (load && k % 20 == 0) {
        ASSERT_EQ(settings.GoodRound(control), good) << "behind the failure of operation " << k;
      }
    }
    settings.FailingAt(0, read);
    EXPECT_EQ(settings.GoodRound(control), good);
  }
  EXPECT_EQ(tolerated, 15) << "one look-up for each characteristic";
}

}  // namespace
}  // namespace ORXKMPrintProp::test
