#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;

namespace ORXKMPrintProp {
class ListBox;
namespace qt {
class PrnPropView;
}
namespace views {
enum class SearchFrom;
}
}  // namespace ORXKMPrintProp

namespace ORXKMPrintProp::host {

/// Finds an entry of the list at hand by any part of its text, and puts the caret there while that is typed. It lies
/// over the corner of the dialog until Escape closes it.
class FindField : public QFrame {
 public:
  /// @param over what it lies over the upper right corner of.
  FindField(qt::PrnPropView& view, QWidget* over);

  void Open();
  /// The next entry, round and round; opens a field that is closed.
  void FindNext();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Find(views::SearchFrom from);
  void Tell(const QString& words);
  void Arrange();
  /// The focus goes to the list.
  void Close();

  qt::PrnPropView& view_;
  QLineEdit* text_;
  QLabel* told_;
};

}  // namespace ORXKMPrintProp::host
