#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "host/Drive.h"
#include "host/SettingsDocument.h"
#include "host/WidgetState.h"
#include "view_fixture.h"

namespace ORXKMPrintProp::qt::test {
namespace {

constexpr const char* kDocument = PRNPROP_EXAMPLES "/sales.json";

/// What a user does on all four pages, in the words of `prnprop drive`.
constexpr const char* kScript = R"(keys txtGenPrnTitle !
keys txtGenMarginTop 1a2
toggle chkGenUseColors
pick cmbGenSumPosit 0
tab 1
click lstPrint(1) 0
click lstPrint(1) 3
keys txtCharColTitle x
pick cmbCharPresentation 0
toggle chkCharColAutoWidth
drag lstPrint(1) 3 6 1
rclick lstPrint(1) 2
pick cmbCharQueryBreak 2
click lstPrint(1) 8
press cmdRightToLeft(1)
click lstAvail(1) 1
press cmdLeftToRight(1)
tab 2
pick cmbAttrChar 1
click lstAvail(2) 0
press cmdLeftToRight(2)
drag lstPrint(2) 0 1
tab 3
click lstStrStructures 1
click lstPrint(3) 0
tab 0
)";

/// The states of all widgets, a line each. The typeface is the view's, and not what this is about.
std::string States(const Dialog& dialog) {
  std::string states;
  for (const auto& widget : dialog.Controls()) {
    auto state = host::StateOf(*widget);
    state.erase("font");
    states += host::ToLine(state) + "\n";
  }
  return states;
}

class ScriptTest : public ViewTest {
 protected:
  void Do(const std::string& action, const std::string& name, const std::vector<int>& numbers,
          const std::string& text) {
    const char* const widget = name.c_str();
    if (action == "tab") {
      auto& tabs = *view.findChild<QTabBar*>();
      QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(std::stoi(name)).center());
    } else if (action == "click") {
      Click(Glass<QListView>(widget), numbers[0]);
    } else if (action == "rclick") {
      Click(Glass<QListView>(widget), numbers[0], Qt::RightButton);
    } else if (action == "drag") {
      auto& list = Glass<QListView>(widget);
      Press(list, numbers[0]);
      for (std::size_t i = 1; i < numbers.size(); ++i) Move(list, numbers[i]);
      Release(list, numbers.back());
    } else if (action == "pick") {
      auto& combo = Glass<QComboBox>(widget);
      combo.showPopup();
      combo.view()->setCurrentIndex(combo.model()->index(numbers[0], 0));
      QTest::keyClick(combo.view(), Qt::Key_Return);
    } else if (action == "toggle") {
      auto& check = Glass<QCheckBox>(widget);
      QTest::mouseClick(&check, Qt::LeftButton, {}, QPoint(8, check.height() / 2));
    } else if (action == "keys") {
      auto& box = Glass<QLineEdit>(widget);
      QTest::keyClick(&box, Qt::Key_End);
      QTest::keyClicks(&box, QString::fromStdString(text));
    } else if (action == "press") {
      QTest::mouseClick(&Glass<QPushButton>(widget), Qt::LeftButton);
    } else {
      FAIL() << action;
    }
  }
};

TEST_F(ScriptTest, AHandOnTheViewDoesWhatTheScriptDoes) {
  const auto document = host::ReadSettings(kDocument);
  control.ORXSetPrnTables(document.general, document.dimension, document.member, document.attribute);
  std::istringstream script(kScript);
  for (std::string line; std::getline(script, line);) {
    std::istringstream words(line);
    std::string action, name;
    words >> action >> name;
    const std::string text = line.substr(line.find_last_of(' ') + 1);
    std::vector<int> numbers;
    for (int number; words >> number;) numbers.push_back(number);
    Do(action, name, numbers, text);
  }
  const std::string byHand = States(dialog);

  const std::string path = (std::filesystem::temp_directory_path() / "prnprop-script-test.drive").string();
  std::ofstream(path) << kScript << "state\n";
  std::ostringstream out, err;
  host::DriveOptions options;
  options.settings = kDocument;
  options.script = path;
  EXPECT_EQ(host::Drive(options, out, err), 0) << err.str();
  std::filesystem::remove(path);
  std::istringstream lines(out.str());
  std::string byScript;
  for (std::string line; std::getline(lines, line);) {
    auto state = nlohmann::ordered_json::parse(line);
    EXPECT_FALSE(state.contains("refused")) << line;
    if (!state.contains("widget") || state["widget"] == "ORXQueryPrnProp") continue;
    state.erase("font");
    byScript += host::ToLine(state) + "\n";
  }
  EXPECT_EQ(byHand, byScript);
}

}  // namespace
}  // namespace ORXKMPrintProp::qt::test
