#include "host/Check.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <thread>

#include "host/CheckReport.h"
#include "host/DocumentNames.h"
#include "host/InOrder.h"
#include "host/ProgressLine.h"

namespace ORXKMPrintProp::host {
namespace {

using Counts = std::map<CheckOutcome, std::size_t>;

/// "3 documents: 2 kept whole, 1 loses something".
std::string Summary(Counts counts) {
  struct Words {
    CheckOutcome outcome;
    const char* ofOne;
    const char* ofSeveral;
  };
  static constexpr Words kWords[] = {
      {CheckOutcome::IsKeptWhole, " kept whole", " kept whole"},
      {CheckOutcome::LosesSomething, " loses something", " lose something"},
      {CheckOutcome::DoesNotLoad, " does not load", " do not load"},
      {CheckOutcome::IsNoDocument, " is not a settings document", " are not settings documents"},
      {CheckOutcome::CanNotBeRead, " can't be read", " can't be read"},
  };
  std::size_t all = 0;
  for (const Words& words : kWords) all += counts[words.outcome];
  std::string text = std::to_string(all) + " documents";
  const char* separator = ": ";
  for (const auto& [outcome, ofOne, ofSeveral] : kWords) {
    const std::size_t count = counts[outcome];
    if (count == 0) continue;
    text += separator + (count == all ? "all" : std::to_string(count)) + (count == 1 ? ofOne : ofSeveral);
    separator = ", ";
  }
  if (counts[CheckOutcome::LeadsNowhere] > 0) text += "; not all folders and patterns lead to documents";
  return text;
}

void TellRepeated(const std::vector<std::string>& repeated, std::ostream& err) {
  if (repeated.empty()) return;
  err << "prnprop: " << repeated.front();
  if (repeated.size() > 1) err << " and " << repeated.size() - 1 << " more";
  err << (repeated.size() > 1 ? " are" : " is") << " named again, and checked once\n";
}

}  // namespace

int Check(const CheckOptions& options, std::ostream& out, std::ostream& err) {
  const DocumentNames found = FindDocuments(options.names);
  const std::vector<DocumentName>& names = found.names;
  TellRepeated(found.repeated, err);

  const auto check = [&](std::size_t number) {
    const DocumentName& name = names[number];
    if (name.error.empty()) return ReportOn(name.path, options.json);
    return ReportFailure(name.path, CheckOutcome::LeadsNowhere, name.error, options.json);
  };
  ProgressLine progress(options.showProgress ? &err : nullptr);
  Counts counts;
  std::size_t done = 0;
  int worst = kSuccess;
  const auto tell = [&](const CheckReport& report) {
    progress.Wipe();
    // What is told of a document is to be seen when it is known.
    out << report.out << std::flush;
    err << report.err;
    ++counts[report.outcome];
    worst = std::max<int>(worst, StatusOf(report.outcome));
    progress.Show("checked " + std::to_string(++done) + " of " + std::to_string(names.size()));
  };
  const std::size_t jobs = options.jobs > 0 ? options.jobs : std::max(1U, std::thread::hardware_concurrency());
  InOrder(names.size(), jobs, check, tell);
  progress.Wipe();
  if (done - counts[CheckOutcome::LeadsNowhere] > 1 && !options.json) out << Summary(counts) << "\n";
  return worst;
}

}  // namespace ORXKMPrintProp::host
