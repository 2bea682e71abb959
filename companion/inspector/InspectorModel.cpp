#include "companion/inspector/InspectorModel.h"

#include <QApplication>
#include <QDateTime>
#include <QStringList>
#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "platform/Look.h"

namespace {

using Kind = InspectorEvent::Kind;

constexpr qsizetype kLongestCell = 300;  // nobody sees more of it

// What crosses the border stands out from the traces between.
QColor colorOf(const InspectorEvent& event) {
  const QPalette palette = QApplication::palette();
  const LookScheme scheme = lookSchemeFor(palette);
  switch (event.kind) {
    case Kind::Warning:
      return lookColor(SystemColor::Red, scheme);
    case Kind::Trace:
      return event.level == KZTraceLevel::Error ? lookColor(SystemColor::Red, scheme)
                                                : palette.color(QPalette::PlaceholderText);
    case Kind::CommandToHost:
    case Kind::Answer:
    case Kind::Address:
      return lookColor(SystemColor::Blue, scheme);
    case Kind::Telemetry:
      return palette.color(QPalette::PlaceholderText);
    case Kind::CommandToPlugin:
    case Kind::Notification:
    case Kind::PersonalRoom:
    case Kind::Challenge:
    case Kind::StoreWrite:
    case Kind::Keychain:
      break;
  }
  return palette.color(QPalette::Text);
}

// Whatever would break a line or begin a column.
QString onOneLine(QString text) {
  for (QChar& sign : text) {
    const bool isBreak = sign.category() == QChar::Other_Control || sign == QChar::LineSeparator ||
                         sign == QChar::ParagraphSeparator;
    if (isBreak) sign = u' ';
  }
  return text;
}

QString columnText(const InspectorEvent& event, int column, qsizetype longest) {
  switch (column) {
    case InspectorModel::TimeColumn:
      return QDateTime::fromMSecsSinceEpoch(event.time).toString(QStringLiteral("HH:mm:ss.zzz"));
    case InspectorModel::KindColumn:
      return event.kindTitle();
    case InspectorModel::NameColumn:
      return onOneLine(event.title());
    default:
      return onOneLine(event.content.left(longest));
  }
}

}  // namespace

InspectorModel::InspectorModel(InspectorLog* log) : m_log(log) {
  connect(log, &InspectorLog::appended, this, &InspectorModel::append);
  connect(log, &InspectorLog::dropped, this, &InspectorModel::dropBefore);
  connect(log, &InspectorLog::cleared, this, &InspectorModel::forget);
  rebuild();
}

void InspectorModel::setFilter(InspectorFilter filter) {
  m_filter = std::move(filter);
  rebuild();
}

void InspectorModel::setFlow(Flow flow) {
  if (flow == m_flow) return;
  m_flow = flow;
  m_missed = 0;
  m_lastSerial = m_log->events().empty() ? 0 : m_log->events().back()->serial;
  if (flow == Flow::Live) rebuild();
}

int InspectorModel::rowOf(quint64 serial) const {
  const auto row =
      std::ranges::lower_bound(m_rows, serial, {}, [](const auto& event) { return event->serial; });
  return row == m_rows.end() || (*row)->serial != serial ? -1 : static_cast<int>(row - m_rows.begin());
}

void InspectorModel::append(qsizetype count) {
  if (m_flow == Flow::Paused) {
    m_missed += count;
    return Q_EMIT missed(m_missed);
  }
  const auto& events = m_log->events();
  std::vector<InspectorLog::Event> accepted;
  std::copy_if(events.end() - count, events.end(), std::back_inserter(accepted),
               [this](const auto& event) { return m_filter.accepts(*event); });
  if (accepted.empty()) return;
  const int row = rowCount();
  beginInsertRows({}, row, row + static_cast<int>(accepted.size()) - 1);
  std::ranges::move(accepted, std::back_inserter(m_rows));
  endInsertRows();
}

void InspectorModel::dropBefore(quint64 serial) {
  if (m_flow == Flow::Paused) return;
  const auto kept =
      std::ranges::lower_bound(m_rows, serial, {}, [](const auto& event) { return event->serial; });
  if (kept == m_rows.begin()) return;
  beginRemoveRows({}, 0, static_cast<int>(kept - m_rows.begin()) - 1);
  m_rows.erase(m_rows.begin(), kept);
  endRemoveRows();
}

void InspectorModel::rebuild() {
  beginResetModel();
  m_rows.clear();
  for (const InspectorLog::Event& event : m_log->events()) {
    const bool isLater = m_flow == Flow::Paused && event->serial > m_lastSerial;
    if (!isLater && m_filter.accepts(*event)) m_rows.push_back(event);
  }
  endResetModel();
}

void InspectorModel::forget() {
  m_missed = 0;
  rebuild();
  if (m_flow == Flow::Paused) Q_EMIT missed(0);
}

QString InspectorModel::lineAt(int row) const {
  QStringList columns;
  for (int column = 0; column < ColumnCount; ++column) columns.append(columnText(*eventAt(row), column, -1));
  return columns.join(u'\t');
}

int InspectorModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int InspectorModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant InspectorModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const InspectorEvent& event = *eventAt(index.row());
  if (role == Qt::ForegroundRole) return colorOf(event);
  return role == Qt::DisplayRole ? QVariant(columnText(event, index.column(), kLongestCell)) : QVariant();
}

QVariant InspectorModel::headerData(int section, Qt::Orientation orientation, int role) const {
  static const QStringList titles = {QStringLiteral("Time"), QStringLiteral("Kind"), QStringLiteral("Name"),
                                     QStringLiteral("Content")};
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
  return role == Qt::DisplayRole ? titles.value(section) : QVariant();
}
