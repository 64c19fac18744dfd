#pragma once

namespace ORXKMPrintProp {

/// What each of the four pages does. These routines run only while there is a model.
class Page {
 public:
  Page() = default;
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;
  virtual ~Page() = default;

  /// Back to what the page is at control start, ahead of a fill from another model.
  virtual void ResetPage() {}
  /// Fills the page from the model.
  virtual void ShowPage() = 0;
  /// Commits what the page holds into the model.
  virtual void StorePage() = 0;
  /// Applies the read-only switch.
  virtual void EnablePage() = 0;
};

}  // namespace ORXKMPrintProp
