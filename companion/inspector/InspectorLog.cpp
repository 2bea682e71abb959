#include "companion/inspector/InspectorLog.h"

#include <QApplication>
#include <QDateTime>
#include <QMutexLocker>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "companion/texts/CompanionText.h"
#include "platform/Look.h"

namespace {

using Group = InspectorEvent::Group;

// Dropping some at a time spares the lists that show the log from moving all their rows at every event.
constexpr qsizetype kKeptEvents = InspectorLog::mostEvents / 40 * 39;
constexpr qsizetype kKeptBytes = InspectorLog::mostBytes / 40 * 39;
constexpr qsizetype kLongestCell = 300;  // more is never in sight

// Events between host and plug-in are distinguished from traces.
QColor colorOf(const InspectorEvent& event) {
  const QPalette palette = QApplication::palette();
  const LookScheme scheme = lookSchemeFor(palette);
  if (event.group == Group::Warnings || event.isError) return lookColor(SystemColor::Red, scheme);
  if (event.group == Group::Traces || event.group == Group::Telemetry)
    return palette.color(QPalette::PlaceholderText);
  return event.isFromPlugin ? lookColor(SystemColor::Blue, scheme) : palette.color(QPalette::Text);
}

// Without control characters and line separators.
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
      return companionText(event.kind.toUtf8().constData());
    case InspectorLog::NameColumn:
      return onOneLine(event.title);
    default:
      return onOneLine(event.content.left(longest));
  }
}

}  // namespace

void InspectorLog::record(const PluginEvent& event) {
  auto recorded = std::make_shared<const InspectorEvent>(InspectorEvent::of(event));
  const QMutexLocker lock(&m_mutex);
  m_bytes += recorded->bytes();
  m_latest.push_back(std::move(recorded));
  const bool isFull = qsizetype(m_latest.size()) > mostEvents || m_bytes > mostBytes;
  while (isFull && (qsizetype(m_latest.size()) > kKeptEvents || m_bytes > kKeptBytes)) {
    m_bytes -= m_latest.front()->bytes();
    m_latest.pop_front();
    ++m_firstLatest;
  }
  if (!std::exchange(m_isUpdateQueued, true))
    QMetaObject::invokeMethod(this, &InspectorLog::updateRows, Qt::QueuedConnection);
}

void InspectorLog::clear() {
  beginResetModel();
  m_rows.clear();
  {
    const QMutexLocker lock(&m_mutex);
    m_firstLatest += qsizetype(m_latest.size());
    m_latest.clear();
    m_bytes = 0;
    m_firstRow = m_firstLatest;
  }
  endResetModel();
  if (m_flow == Flow::Paused) Q_EMIT waiting(0);
}

void InspectorLog::setFlow(Flow flow) {
  m_flow = flow;
  updateRows();
}

void InspectorLog::updateRows() {
  QMutexLocker lock(&m_mutex);
  m_isUpdateQueued = false;
  const qsizetype firstLatest = m_firstLatest;
  const qsizetype shown = std::max<qsizetype>(m_firstRow + rowCount() - firstLatest, 0);
  const auto freshCount = static_cast<int>(qsizetype(m_latest.size()) - shown);
  std::deque<Event> fresh;
  if (m_flow == Flow::Live) fresh.assign(m_latest.begin() + shown, m_latest.end());
  lock.unlock();
  if (m_flow == Flow::Paused) return Q_EMIT waiting(freshCount);
  const auto goneCount = static_cast<int>(std::min<qsizetype>(firstLatest - m_firstRow, rowCount()));
  if (goneCount > 0) {
    beginRemoveRows({}, 0, goneCount - 1);
    m_rows.erase(m_rows.begin(), m_rows.begin() + goneCount);
    endRemoveRows();
  }
  m_firstRow = firstLatest;
  if (freshCount == 0) return;
  beginInsertRows({}, rowCount(), rowCount() + freshCount - 1);
  m_rows.insert(m_rows.end(), fresh.begin(), fresh.end());
  endInsertRows();
}

QString InspectorLog::lineOf(const InspectorEvent& event) {
  QStringList columns;
  for (int column = 0; column < ColumnCount; ++column) columns.append(columnText(event, column, -1));
  return columns.join(u'\t');
}

int InspectorLog::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
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
  static constexpr const char* titles[] = {textKey("Time"), textKey("Kind"), textKey("Name"),
                                           textKey("Content")};
  const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole;
  return isTitle ? companionText(titles[section]) : QVariant();
}
