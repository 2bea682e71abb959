#include "companion/app/BorderLog.h"

#include <QApplication>
#include <QStringList>

#include "platform/Look.h"

namespace {

// What crosses the border stands out from the traces between.
QColor colorOf(BorderEvent::Kind kind) {
  const QPalette palette = QApplication::palette();
  switch (kind) {
    case BorderEvent::Kind::Warning:
      return lookColor(SystemColor::Red, lookSchemeFor(palette));
    case BorderEvent::Kind::Trace:
      return palette.color(QPalette::PlaceholderText);
    case BorderEvent::Kind::CommandToHost:
    case BorderEvent::Kind::Answer:
    case BorderEvent::Kind::Address:
      return lookColor(SystemColor::Blue, lookSchemeFor(palette));
    case BorderEvent::Kind::CommandToPlugin:
    case BorderEvent::Kind::Notification:
    case BorderEvent::Kind::PersonalRoom:
    case BorderEvent::Kind::Challenge:
      break;
  }
  return palette.color(QPalette::Text);
}

}  // namespace

void BorderLog::append(const BorderEvent& event) {
  if (m_events.size() == longestLog) {
    beginRemoveRows({}, 0, 0);
    m_events.pop_front();
    endRemoveRows();
  }
  const int row = rowCount();
  beginInsertRows({}, row, row);
  m_events.push_back(event);
  endInsertRows();
}

void BorderLog::record(const Crossing& crossing) {
  QMetaObject::invokeMethod(this, [this, event = BorderEvent::of(crossing)] { append(event); });
}

void BorderLog::clear() {
  beginResetModel();
  m_events.clear();
  endResetModel();
}

QString BorderLog::lineAt(int row) const {
  QStringList columns;
  for (int column = 0; column < ColumnCount; ++column) columns.append(textAt(row, column));
  return columns.join(u'\t');
}

int BorderLog::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_events.size());
}

int BorderLog::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant BorderLog::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const BorderEvent::Kind kind = m_events[static_cast<size_t>(index.row())].kind;
  if (role == kindRole) return static_cast<int>(kind);
  if (role == Qt::ForegroundRole) return colorOf(kind);
  const bool isToolTip = role == Qt::ToolTipRole && index.column() >= NameColumn;
  return role == Qt::DisplayRole || isToolTip ? QVariant(textAt(index.row(), index.column())) : QVariant();
}

QVariant BorderLog::headerData(int section, Qt::Orientation orientation, int role) const {
  static const QStringList titles = {QStringLiteral("Time"), QStringLiteral("Kind"), QStringLiteral("Name"),
                                     QStringLiteral("Content")};
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
  return role == Qt::DisplayRole ? titles.value(section) : QVariant();
}

QString BorderLog::textAt(int row, int column) const {
  const BorderEvent& event = m_events[static_cast<size_t>(row)];
  switch (column) {
    case TimeColumn:
      return event.time.toString(QStringLiteral("HH:mm:ss.zzz"));
    case KindColumn:
      return kindText(event.kind);
    case NameColumn:
      return event.name;
    default:
      return event.content;
  }
}
