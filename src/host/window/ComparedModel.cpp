#include "host/window/ComparedModel.h"

#include <QBrush>
#include <QFont>
#include <algorithm>
#include <iterator>
#include <utility>

#include "host/Terminal.h"
#include "host/window/Translation.h"
#include "views/qt/QtText.h"
#include "views/qt/WidgetView.h"

namespace ORXKMPrintProp::host {
namespace {

// Both colors are set: the text must stay readable under a dark theme.
const QColor kMarked(255, 224, 140);
const QColor kMarkedInk(32, 32, 32);
// Told by no color alone.
const QString kMark = QStringLiteral("\u2260 ");

}  // namespace

void ComparedModel::Show(ComparedTable table) {
  beginResetModel();
  table_ = std::move(table);
  endResetModel();
}

QModelIndex ComparedModel::Mark(const QModelIndex& from, bool forward) const {
  std::optional<ComparedTable::Place> place;
  if (from.isValid()) place = {static_cast<std::size_t>(from.row()), static_cast<std::size_t>(from.column())};
  const auto mark = table_.Difference(place, forward);
  return mark ? index(static_cast<int>(mark->first), static_cast<int>(mark->second)) : QModelIndex();
}

QString ComparedModel::CutText(const QModelIndex& index) const {
  const auto row = static_cast<std::size_t>(index.row());
  const auto cell = table_.At(row, static_cast<std::size_t>(index.column()));
  if (!cell.differs || table_.IsGone(row)) return index.data().toString();
  return kMark + qt::ToQString(CutToDifference(OneLine(cell.now), OneLine(cell.file)));
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
  static constexpr int kRoles[] = {Qt::DisplayRole, Qt::BackgroundRole, Qt::ForegroundRole, Qt::ToolTipRole,
                                   Qt::AccessibleDescriptionRole};
  if (std::find(std::begin(kRoles), std::end(kRoles), role) == std::end(kRoles)) return {};
  const ComparedTable::Cell cell = table_.At(row, static_cast<std::size_t>(index.column()));
  const QString text = qt::ToQString(OneLine(isGone ? cell.file : cell.now));
  if (role == Qt::DisplayRole) return cell.differs ? kMark + text : text;
  if (!cell.differs) return {};
  if (role == Qt::BackgroundRole) return QBrush(kMarked);
  if (role == Qt::ForegroundRole) return QBrush(kMarkedInk);
  const QString file = qt::ToQString(OneLine(cell.file));
  const QString told = isGone                     ? Tr("The row does not come back")
                       : file.trimmed().isEmpty() ? Tr("Empty in the file")
                                                  : Tr("In the file: {0}", file);
  return role == Qt::ToolTipRole ? qt::ToolTipOf(told) : told;
}

QVariant ComparedModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Vertical) return section + 1;
  return qt::ToQString(table_.Columns()[static_cast<std::size_t>(section)]);
}

}  // namespace ORXKMPrintProp::host
