#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "host/Utf8.h"
#include "support/table_text.h"
#include "support/transcript.h"
#include "support/widget_text.h"
#include "views/Fitting.h"
#include "views/Keys.h"
#include "views/ListPointer.h"
#include "views/Places.h"
#include "views/SpokenName.h"

namespace ORXKMPrintProp::test {
namespace {

using namespace views;

TEST(Places, MeetAtTheirRoundedEdges) {
  // The transfer buttons' list and its label, whose edges fall between pixels.
  const Geometry upper{120, 1200, 1935, 255}, lower{120, 1455, 1935, 2595};
  for (const double dpi : {72.0, 96.0, 120.0, 144.0, 192.0}) {
    const Place above = PlaceOf(upper, {dpi, dpi}), below = PlaceOf(lower, {dpi, dpi});
    EXPECT_EQ(above.top + above.height, below.top) << dpi;
  }
  EXPECT_EQ(PlaceOf({128, 130, 56, 30}, {96, 144}), (Place{9, 13, 3, 3}));
  EXPECT_EQ(TabHeightAt({96, 144}), 29);
}

TEST(ToolTips, HaveTheCutCaptionFirst) {
  EXPECT_EQ(ToolTipWith(u"cut", u"tip") + ToolTipWith(u"", u"tip") + ToolTipWith(u"cut", u""), u"cut\ntiptipcut");
}

/// Ten characters of full size and width are 100 wide.
int WidthOf(TextView text, const Letters& letters) {
  return static_cast<int>(text.size()) * letters.size * letters.width / 1000;
}

std::string NameOf(const Letters& letters, bool isCut) {
  std::string name = std::to_string(letters.size) + "%";
  if (letters.width != 100) name += " at " + std::to_string(letters.width) + "%";
  return name + (isCut ? ", cut" : "");
}

/// What every view knows, without one. The steps:
///
///     spoken WIDGET, fit WIDTH TEXT, fit-tabs WIDTH (four of them, each wider by 100 than the one before)
///     caption WIDGET N (characters in a room of 1000, and the widgets whose letters are not full)
///     type LETTERS (in a combo box), wait (longer than letters that follow each other)
///     key WIDGET KEY (of a list, of which three entries are seen, of the combo box, or of the tabs)
///     press BUTTON Y, move Y, release BUTTON (in a list of five entries, of which three are seen, each ten pixels
///     high) press BUTTON Y another, move Y another (button is held), move Y none (is held) timer, let-go, release (the
///     list has been disabled, and the release comes that was asked for), end (of the view)
///
/// The state: "combo", "keys", a list for keys, "timer" and "release", whether one is asked for. Events have a button
/// and the entry.
class RulesPlayer : public Player, private ListGlass {
 public:
  RulesPlayer();

 protected:
  void DoStep(const std::string& line) override;
  Lines State() override {
    return {{"combo", StateOf(combo_)},
            {"keys", StateOf(keysList_)},
            {"timer", isRunning_ ? "on" : "off"},
            {"release", isAsked_ ? "asked for" : "no"}};
  }

 private:
  int Height() const override { return 30; }
  int EntryAt(int y) const override { return y < 0 || y >= 30 || top_ + y / 10 >= 5 ? -1 : top_ + y / 10; }
  void ScrollBy(int step) override { top_ = std::clamp(top_ + step, 0, 2); }
  void RunTimer(bool on) override { isRunning_ = on; }
  void ReleaseLater() override { isAsked_ = true; }
  void Perform(const std::function<void()>& action) override { action(); }

  void Type(const Text& letters);
  void Strike(Widget& widget, std::string key);
  void ChangeCaption(const std::string& name, std::size_t characters);

  Dialog dialog_;
  ComboBox& combo_ = dialog_.Get<ComboBox>(u"cmbAttrChar");
  CaptionLetters letters_{
      dialog_, [](const Widget& widget) {
        return FittingLetters([&](const Letters& letters) { return WidthOf(widget.Caption(), letters) <= 1000; });
      }};
  ListBox& list_ = dialog_.Get<ListBox>(u"lstPrint", kStrTab);
  ListBox& keysList_ = dialog_.Get<ListBox>(u"lstAvail", kStrTab);
  ListKeys keys_;
  TypeAhead search_;
  TypeAhead::Clock::time_point now_;
  int top_ = 0;
  bool isRunning_ = false;
  bool isAsked_ = false;
  std::optional<ListPointer> pointer_;
};

RulesPlayer::RulesPlayer() : Player({}) {
  dialog_.ApplyTexts();
  dialog_.TabStrip().Tab(kStrTab);
  dialog_.Get<Label>(u"lblCharCol1").Caption(u"Key & more");
  Fill(combo_, "ab Ac b abc");
  combo_.ListIndex(0);
  for (ListBox* const list : {&list_, &keysList_}) Fill(*list, "a b c d e");
  const auto tell = [this](const char* event) {
    return [this, event](std::int16_t button) {
      Tell(event + std::to_string(button) + " at " + std::to_string(list_.ListIndex()));
    };
  };
  list_.MouseDown = tell("down ");
  list_.MouseMove = tell("move ");
  list_.MouseUp = tell("up ");
  pointer_.emplace(list_, static_cast<ListGlass&>(*this));
  shown_.lines = State();
}

void RulesPlayer::DoStep(const std::string& line) {
  std::istringstream words(line);
  std::string verb, rest;
  words >> verb >> std::ws;
  std::getline(words, rest);
  std::istringstream numbers(rest);
  int first = 0, y = 0;
  numbers >> first >> y;
  const bool isAnother = rest.ends_with("another");
  const auto button = static_cast<std::int16_t>(first);
  const Steps steps{
      {"spoken", [&] { Tell(host::ToUtf8(SpokenName(dialog_, *dialog_.FindSpelled(Wide(rest))).Spoken())); }},
      {"fit",
       [&] {
         const FittedText fitted =
             Fit(host::FromUtf8(rest.substr(std::min(rest.find(' '), rest.size() - 1) + 1)), first, WidthOf);
         Tell("'" + host::ToUtf8(fitted.text) + "' " + NameOf(fitted.letters, fitted.isCut));
       }},
      {"fit-tabs",
       [&] {
         const FittedTabs fitted = FitTabs(
             4, first, [](int tab, const Letters& letters) { return (tab + 1) * letters.size * letters.width / 100; });
         Tell(NameOf(fitted.letters, fitted.areCut));
         const auto inSmallest = [](int tab) { return (tab + 1) * 56; };
         std::string rooms;
         for (int tab = 0; tab < 4; ++tab) rooms += ' ' + std::to_string(RoomOfTab(tab, 4, first, inSmallest));
         if (fitted.areCut) Tell("room:" + rooms);
       }},
      {"caption", [&] { ChangeCaption(rest.substr(0, rest.find(' ')), std::stoul(rest.substr(rest.find(' ')))); }},
      {"type", [&] { Type(Wide(rest)); }},
      {"wait", [&] { now_ += std::chrono::milliseconds(1001); }},
      {"key",
       [&] { Strike(*dialog_.FindSpelled(Wide(rest.substr(0, rest.find(' ')))), rest.substr(rest.find(' ') + 1)); }},
      {"add", [&] { keysList_.AddItem(Wide(rest)); }},
      {"press", [&] { pointer_->Press(button, isAnother, y); }},
      {"move", [&] { pointer_->Move(!rest.ends_with("none"), isAnother, first); }},
      {"timer", [&] { pointer_->OnTimer(); }},
      {"release",
       [&] {
         isAsked_ = false;
         rest.empty() ? pointer_->Release() : pointer_->Release(button);
       }},
      {"let-go", [&] { pointer_->LetGo(); }},
      {"end", [&] { pointer_.reset(); }},
  };
  EXPECT_TRUE(DoOneOf(steps, verb)) << line;
}

void RulesPlayer::Type(const Text& letters) {
  for (const char16_t letter : letters) {
    const auto found = search_.Find(combo_, Text(1, letter), now_);
    if (!found) Tell("none");
    if (found) combo_.ListIndex(*found);
  }
}

void RulesPlayer::Strike(Widget& widget, std::string key) {
  KeyPress press;
  for (const auto& [head, isHeld] :
       {std::pair(std::string("Alt+"), &KeyPress::alt), {"Ctrl+", &KeyPress::control}, {"Shift+", &KeyPress::shift}}) {
    press.*isHeld = key.starts_with(head);
    if (press.*isHeld) key.erase(0, head.size());
  }
  static const std::map<std::string, Key> keys{{"Up", Key::Up},           {"Down", Key::Down},   {"End", Key::End},
                                               {"PgDown", Key::PageDown}, {"Right", Key::Right}, {"A", Key::A}};
  press.key = keys.contains(key) ? keys.at(key) : Key::Other;
  if (press.key == Key::Other) press.text = key == "Escape" ? u"\x1b" : Wide(key);
  if (auto* const list = dynamic_cast<ListBox*>(&widget)) {
    const auto action = keys_.ActionOf(*list, press, 3);
    action ? action() : Tell("not for it");
  } else {
    const bool isTaken = &widget == &combo_ ? PickOf(combo_, press, search_).has_value()
                                            : TabOf(dialog_.TabStrip(), press, true).has_value();
    Tell(isTaken ? "for it" : "not for it");
  }
}

void RulesPlayer::ChangeCaption(const std::string& name, std::size_t characters) {
  const Widget& changed = *dialog_.FindSpelled(Wide(name));
  letters_.Of(changed);
  dialog_.FindSpelled(Wide(name))->Caption(Text(characters, u'x'));
  std::string told = letters_.Change(changed) ? "changed:" : "unchanged:";
  for (const auto& widget : dialog_.Controls()) {
    if (letters_.Of(*widget) != Letters()) told += " " + host::ToUtf8(widget->Row().name.Spelled());
  }
  Tell(told + " " + NameOf(letters_.Of(changed), false));
}

TEST(Views, KnowTheirRules) {
  PlayTranscript(PRNPROP_RULES, [] { return std::make_unique<RulesPlayer>(); });
}

}  // namespace
}  // namespace ORXKMPrintProp::test
