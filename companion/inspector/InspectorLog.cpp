#include "companion/inspector/InspectorLog.h"

#include <QApplication>
#include <QDateTime>
#include <QMutexLocker>
#include <QStringList>
#include <iterator>
#include <utility>

#include "platform/Look.h"

namespace {

using Group = InspectorEvent::Group;

// Dropping some at a time spares the lists that show the log from moving all their rows at every event.
constexpr qsizetype kRoomEvents = InspectorLog::mostEvents / 40;
constexpr qsizetype kRoomBytes = InspectorLog::mostBytes / 40;
constexpr qsizetype kLongestCell = 300;  // more is never in sight

// What passes between host and plug-in stands out from the traces between.
QColor colorOf(const InspectorEvent& event) {
  const QPalette palette = QApplication::palette();
  const LookScheme scheme = lookSchemeFor(palette);
  if (event.group == Group::Warnings || event.level == KZTraceLevel::Error)
    return lookColor(SystemColor::Red, scheme);
  if (event.group == Group::Traces || event.group == Group::Telemetry)
    return palette.color(QPalette::PlaceholderText);
  return event.isFromPlugin ? lookColor(SystemColor::Blue, scheme) : palette.color(QPalette::Text);
}

// Without what would break the line or begin a column.
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
    case InspectorLog::TimeColumn:
      return QDateTime::fromMSecsSinceEpoch(event.time).toString(QStringLiteral("HH:mm:ss.zzz"));
    case InspectorLog::KindColumn:
      return event.kindTitle();
    case InspectorLog::NameColumn:
      return onOneLine(event.title());
    default:
      return onOneLine(event.content.left(longest));
  }
}

}  // namespace

void InspectorLog::Bounded::append(Event event) {
  bytes += event->bytes();
  events.push_back(std::move(event));
}

qsizetype InspectorLog::Bounded::excess(qsizetype count, qsizetype byteCount) const {
  qsizetype dropped = 0;
  qsizetype rest = bytes;
  while (dropped < qsizetype(events.size()) &&
         (qsizetype(events.size()) - dropped > count || rest > byteCount))
    rest -= events[static_cast<size_t>(dropped++)]->bytes();
  return dropped;
}

void InspectorLog::Bounded::dropFirst(qsizetype count) {
  for (; count > 0; --count) {
    bytes -= events.front()->bytes();
    events.pop_front();
  }
}

void InspectorLog::record(const PluginEvent& event) {
  auto recorded = std::make_shared<const InspectorEvent>(InspectorEvent::of(event));
  const QMutexLocker lock(&m_mutex);
  m_waiting.append(std::move(recorded));
  m_waiting.dropFirst(m_waiting.excess(mostEvents, mostBytes));
  if (!std::exchange(m_isTakeInQueued, true))
    QMetaObject::invokeMethod(this, &InspectorLog::takeIn, Qt::QueuedConnection);
}

void InspectorLog::clear() {
  {
    const QMutexLocker lock(&m_mutex);
    m_waiting = {};
  }
  beginResetModel();
  m_kept = {};
  endResetModel();
  if (m_flow == Flow::Paused) Q_EMIT waiting(0);
}

void InspectorLog::setFlow(Flow flow) {
  m_flow = flow;
  takeIn();
}

void InspectorLog::takeIn() {
  Bounded fresh;
  qsizetype waitingCount = 0;
  {
    const QMutexLocker lock(&m_mutex);
    m_isTakeInQueued = false;
    waitingCount = qsizetype(m_waiting.events.size());
    if (m_flow == Flow::Live) fresh = std::exchange(m_waiting, {});
  }
  if (m_flow == Flow::Paused) return Q_EMIT waiting(waitingCount);
  if (fresh.events.empty()) return;
  makeRoomFor(fresh);
  beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(fresh.events.size()) - 1);
  for (Event& event : fresh.events) m_kept.append(std::move(event));
  endInsertRows();
}

void InspectorLog::makeRoomFor(const Bounded& fresh) {
  const qsizetype count = mostEvents - qsizetype(fresh.events.size());
  const qsizetype bytes = mostBytes - fresh.bytes;
  if (m_kept.excess(count, bytes) == 0) return;
  const qsizetype dropped = m_kept.excess(count - kRoomEvents, bytes - kRoomBytes);
  beginRemoveRows({}, 0, static_cast<int>(dropped) - 1);
  m_kept.dropFirst(dropped);
  endRemoveRows();
}

QString InspectorLog::lineOf(const InspectorEvent& event) {
  QStringList columns;
  for (int column = 0; column < ColumnCount; ++column) columns.append(columnText(event, column, -1));
  return columns.join(u'\t');
}

int InspectorLog::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_kept.events.size());
}

int InspectorLog::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant InspectorLog::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const InspectorEvent& event = *eventAt(index.row());
  if (role == Qt::ForegroundRole) return colorOf(event);
  return role == Qt::DisplayRole ? QVariant(columnText(event, index.column(), kLongestCell)) : QVariant();
}

QVariant InspectorLog::headerData(int section, Qt::Orientation orientation, int role) const {
  static const QStringList titles = {QStringLiteral("Time"), QStringLiteral("Kind"), QStringLiteral("Name"),
                                     QStringLiteral("Content")};
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
  return role == Qt::DisplayRole ? titles.value(section) : QVariant();
}
