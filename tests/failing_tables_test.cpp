#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/SettingsDocument.h"
#include "support/table_text.h"
#include "support/watched_table.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::test {
namespace {

/// The realistic example, with a watch that its tables can be put under.
struct Realistic {
  Realistic() : document(host::ReadSettings(PRNPROP_EXAMPLES "/sales.json")) {}

  bool LoadInto(ORXQueryPrnProp& control) const {
    return control.ORXSetPrnTables(document.general, document.dimension, document.member, document.attribute);
  }

  bool LoadWatchedInto(ORXQueryPrnProp& control) const {
    watch->calls.clear();
    return control.ORXSetPrnTables(Watched("gen", document.general, watch), Watched("dim", document.dimension, watch),
                                   Watched("mem", document.member, watch), Watched("atr", document.attribute, watch));
  }

  /// What a load and a read-back give when nothing fails; the tables can be loaded again.
  std::string GoodRound(ORXQueryPrnProp& control) const {
    if (!LoadInto(control) || !control.ORXGenPropTable()) return "did not go through";
    return ToString(*document.general) + ToString(*document.dimension) + ToString(*document.member) +
           ToString(*document.attribute);
  }

  host::SettingsDocument document;
  std::shared_ptr<Watch> watch = std::make_shared<Watch>();
};

/// The call that failed, or "none".
template <class Action>
std::string FailedCallOf(Action action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Kind(), ErrorKind::Table);
    return ToAscii(error.Message());
  }
  return "none";
}

TEST(FailingTables, FailTheLoadAndNeverTheNext) {
  Realistic settings;
  ORXQueryPrnProp control;
  const std::string good = settings.GoodRound(control);
  settings.LoadWatchedInto(control);
  const auto calls = settings.watch->calls;
  ASSERT_GT(calls.size(), 1000u);
  control.ORXGenPropTable();

  int tolerated = 0;
  for (std::size_t k = 1; k <= calls.size(); ++k) {
    settings.watch->failAt = k;
    const std::string failed = FailedCallOf([&] { EXPECT_TRUE(settings.LoadWatchedInto(control)); });
    if (failed == "none") {
      // The look-up of a characteristic's attribute rows tolerates any failure: there are none then.
      ASSERT_TRUE(calls[k - 1].starts_with("dim[") && calls[k - 1].ends_with("].Value(IOBJNM)")) << calls[k - 1];
      ++tolerated;
      settings = Realistic();  // the load has emptied the general table
    } else {
      ASSERT_EQ(failed, calls[k - 1]);
      ASSERT_EQ(settings.watch->calls.size(), k) << "nothing is called behind the failure";
      ASSERT_TRUE(settings.LoadInto(control) && control.ORXGenPropTable()) << "behind the failure of operation " << k;
      if (k % 20 == 0) {
        ASSERT_EQ(settings.GoodRound(control), good) << "behind the failure of operation " << k;
      }
    }
  }
  EXPECT_EQ(tolerated, 15) << "one look-up for each characteristic";
}

TEST(FailingTables, FailTheReadBackAndNeverTheNext) {
  const Realistic settings;
  ORXQueryPrnProp control;
  const std::string good = settings.GoodRound(control);
  settings.LoadWatchedInto(control);
  settings.watch->calls.clear();
  control.ORXDimTable();
  const auto calls = settings.watch->calls;
  ASSERT_GT(calls.size(), 1000u);
  for (std::size_t k = 1; k <= calls.size(); ++k) {
    settings.watch->calls.clear();
    settings.watch->failAt = k;
    ASSERT_EQ(FailedCallOf([&] { control.ORXDimTable(); }), calls[k - 1]);
    ASSERT_EQ(settings.watch->calls.size(), k) << "nothing is called behind the failure";
  }
  settings.watch->failAt = 0;
  control.ORXMemTable();
  EXPECT_EQ(settings.GoodRound(control), good);
}

}  // namespace
}  // namespace ORXKMPrintProp::test
