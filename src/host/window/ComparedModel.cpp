#include "host/window/ComparedModel.h"

#include <QBrush>
#include <QFont>
#include <utility>

#include "host/Terminal.h"
#include "views/qt/QtText.h"
#include "views/qt/WidgetView.h"

namespace ORXKMPrintProp::host {
namespace {

// Both colors are set: the text must stay readable under a dark theme.
const QColor kMarked(255, 224, 140);
const QColor kMarkedInk(32, 32, 32);

}  // namespace

void ComparedModel::Show(ComparedTable table) {
  beginResetModel();
  table_ = std::move(table);
  endResetModel();
  const auto first = table_.FirstDifference();
  firstMark_ = first ? index(static_cast<int>(first->first), static_cast<int>(first->second)) : QModelIndex();
}

int ComparedModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.RowCount());
}

int ComparedModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.Columns().size());
}

QVariant ComparedModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  const bool isGone = table_.IsGone(row);
  if (role == Qt::FontRole) {
    QFont font;
    font.setStrikeOut(isGone);
    return isGone ? font : QVariant();
  }
  if (role != Qt::DisplayRole && role != Qt::BackgroundRole && role != Qt::ForegroundRole && role != Qt::ToolTipRole) {
    return {};
  }
  const ComparedTable::Cell cell = table_.At(row, static_cast<std::size_t>(index.column()));
  if (role == Qt::DisplayRole) return qt::ToQString(OneLine(isGone ? cell.file : cell.now));
  if (!cell.differs) return {};
  if (role == Qt::BackgroundRole) return QBrush(kMarked);
  if (role == Qt::ForegroundRole) return QBrush(kMarkedInk);
  if (isGone) return QStringLiteral("The row does not come back");
  const QString file = qt::ToQString(OneLine(cell.file));
  return qt::ToolTipOf(file.trimmed().isEmpty() ? QStringLiteral("Empty in the file")
                                                : QStringLiteral("In the file: ") + file);
}

QVariant ComparedModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Vertical) return section + 1;
  return qt::ToQString(table_.Columns()[static_cast<std::size_t>(section)]);
}

}  // namespace ORXKMPrintProp::host
