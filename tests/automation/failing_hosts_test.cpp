// Tables of a host, each call on which goes wrong once.

#include <gtest/gtest.h>

#include <algorithm>

#include "automation/DispatchTable.h"
#include "automation/Failures.h"
#include "automation/foreign_objects.h"
#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/SettingsDocument.h"
#include "support/table_text.h"

namespace ORXKMPrintProp::test {
namespace {

using namespace automation;

/// The realistic example as a host has it.
struct HostSettings {
  HostSettings() {
    const auto document = host::ReadSettings(PRNPROP_EXAMPLES "/sales.json");
    const auto made = [&](std::shared_ptr<MemoryTable> table) { return Foreign(MakeHostTable(std::move(table)), Known::ByNames, watch); };
    general = made(document.general);
    dimension = made(document.dimension);
    member = made(document.member);
    attribute = made(document.attribute);
    watch->calls.clear();
  }

  void LoadInto(ORXQueryPrnProp& control) const {
    control.ORXSetPrnTables(DispatchTable::Of(general.Get()), DispatchTable::Of(dimension.Get()),
                            DispatchTable::Of(member.Get()), DispatchTable::Of(attribute.Get()));
  }

  /// Does it with that call going wrong. @return how it fails: the number and the words for an error of the host.
  template <class Action>
  std::string FailingAt(std::size_t call, Fault fault, Action action) const {
    watch->calls.clear();
    watch->failAt = call;
    watch->fault = fault;
    try {
      action();
      return "none";
    } catch (const HostFailure& failure) {
      if (failure.Number() == kBareNumber && failure.Source().empty()) return "bare";
      const bool asItCame = failure.Number() == kFaultNumber && failure.Source() == u"Foreign" &&
                            failure.Message() == u"It went wrong.";
      return asItCame ? "exception" : ToAscii(failure.Message());
    } catch (const RunTimeError& error) {
      return NameOf(error.Kind());
    }
  }

  std::shared_ptr<HostWatch> watch = std::make_shared<HostWatch>();
  ComRef<IDispatch> general, dimension, member, attribute;
};

/// What the calls may fail with when each step-th goes wrong in that way. Where nothing can be given a value of the wrong
/// type can't either.
struct Wanted {
  Fault fault;
  std::size_t step;
  std::vector<std::string> failures;
  /// Calls that are done without, in a load: the look-up of attribute rows, what a list without a standard enumerator
  /// gives in its place, and what nobody looks at.
  std::vector<std::string> tolerated;
};

TEST(FailingHosts, FailTheCallLeakNothingAndNeverHarmTheNext) {
  const std::string lookUp = "Value(IOBJNM)", enumerator = "_NewEnum", removal = "list or column 4";
  const Wanted wanted[] = {{Fault::Exception, 1, {"exception", "bare"}, {lookUp}},
                           {Fault::BareCode, 5, {"bare"}, {lookUp}},
                           {Fault::WrongType, 5, {"type", "bare"}, {lookUp, enumerator, removal}},
                           {Fault::NoObject, 5, {"object", "type", "bare"}, {lookUp, enumerator, removal}}};
  const auto holds = [](const std::vector<std::string>& texts, const std::string& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  };
  for (const auto& [fault, step, failures, tolerated] : wanted) {
    for (const bool load : {true, false}) {
      std::size_t calls = 1, lookUps = 0;
      for (std::size_t k = 0; k <= calls; k += step) {
        HostSettings settings;
        {
          ORXQueryPrnProp control;
          if (!load) settings.LoadInto(control);
          const std::string failure = settings.FailingAt(
              k, fault, [&] { load ? settings.LoadInto(control) : void(control.ORXDimTable()); });
          if (k == 0) {
            ASSERT_EQ(failure, "none");
            calls = settings.watch->calls.size();
            ASSERT_GT(calls, 1000u);
          } else if (failure == "none") {
            const std::string& call = settings.watch->calls[k - 1];
            ASSERT_TRUE(holds(tolerated, call) && (load || call == removal)) << call;
            lookUps += call == lookUp ? 1 : 0;
          } else {
            ASSERT_TRUE(holds(failures, failure)) << settings.watch->calls[k - 1] << ": " << failure;
            ASSERT_EQ(settings.watch->calls.size(), k) << "nothing is called behind the failure";
          }
          if (k % 10 == 0) {
            const HostSettings next;
            next.LoadInto(control);
            ASSERT_NE(control.ORXDimTable(), nullptr) << "behind the failure of call " << k;
          }
        }
        ReleaseSharedValues();
        settings.general = settings.dimension = settings.member = settings.attribute = nullptr;
        ASSERT_EQ(settings.watch->alive, 0) << "behind the failure of call " << k;
      }
      if (step == 1 && load) {
        EXPECT_EQ(lookUps, 15u) << "one for each characteristic";
      }
    }
  }
}

}  // namespace
}  // namespace ORXKMPrintProp::test
