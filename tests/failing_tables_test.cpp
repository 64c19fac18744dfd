#include <gtest/gtest.h>

#include "control/ORXQueryPrnProp.h"
#include "host/SettingsDocument.h"
#include "support/table_text.h"
#include "support/watched_table.h"
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
