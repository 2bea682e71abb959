#include "companion/app/MeetingsView.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <chrono>

#include "companion/app/ListTable.h"
#include "companion/app/Rows.h"
#include "companion/runtime/ColumnWidths.h"
#include "companion/runtime/TimeText.h"
#include "companion/services/NextMeetings.h"
#include "companion/texts/CompanionText.h"
#include "platform/Accessible.h"

namespace {

using namespace std::chrono_literals;

enum MeetingColumn { StartColumn, SubjectColumn, NoteColumn };

QString startText(const QDateTime& start) {
  const QDateTime local = start.toLocalTime();
  const QString time = shortTime(local);
  const qint64 days = QDate::currentDate().daysTo(local.date());
  if (days == 0) return companionText("Today, %1").arg(time);
  if (days == 1) return companionText("Tomorrow, %1").arg(time);
  return shortDateTime(local);
}

// Null where there is nothing to say.
QString noteText(const QDateTime& start, int announced) {
  const qint64 seconds = QDateTime::currentDateTimeUtc().secsTo(start);
  if (seconds <= 0) return companionText("has started");
  const qint64 minutes = (seconds + 59) / 60;
  if (minutes > announced) return {};
  return minutes == 1 ? companionText("starts in 1 minute")
                      : companionText("starts in %1 minutes").arg(minutes);
}

}  // namespace

MeetingsView::MeetingsView(NextMeetings* meetings)
    : m_meetings(meetings),
      m_text(new QLabel),
      m_refresh(createButton(companionText("Re&fresh"))),
      m_table(createListTable(companionText("Next meetings"),
                              {companionText("Start"), companionText("Meeting"), companionText("Note")})) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  auto* row = new QHBoxLayout;
  row->addWidget(m_text, 1);
  row->addWidget(m_refresh, 0, Qt::AlignTop);
  column->addLayout(row);
  column->addWidget(m_table, 1);
  // Takes the table's place while there is nothing to list.
  column->addStretch();
  m_text->setObjectName(QStringLiteral("meetingsText"));
  m_text->setTextFormat(Qt::PlainText);
  m_text->setWordWrap(true);
  setColumnWidths(m_table, {24, 24, 24});
  m_table->horizontalHeader()->setSectionResizeMode(SubjectColumn, QHeaderView::Stretch);
  // Only the words for a time change; no request is made.
  m_minute.setInterval(1min);
  connect(&m_minute, &QTimer::timeout, this, &MeetingsView::showMeetings);
  connect(m_refresh, &QPushButton::clicked, meetings, &NextMeetings::refresh);
  connect(meetings, &NextMeetings::changed, this, &MeetingsView::showMeetings);
  showMeetings();
}

void MeetingsView::showMeetings() {
  const QList<ExchangeMeeting>& meetings = m_meetings->meetings();
  m_refresh->setEnabled(!m_meetings->isAsking());
  QString text = m_meetings->text();
  if (text.isEmpty()) text = companionText("Your next meetings:");
  if (m_meetings->isAsking()) text = companionText("Asking for your next meetings.");
  if (isVisible() && text != m_text->text()) announce(m_text, text);
  m_text->setText(text);
  const int announced = announcedMinutes();
  QList<QStringList> rows;
  for (const ExchangeMeeting& meeting : meetings) {
    rows.append({startText(meeting.start), meeting.subject, noteText(meeting.start, announced)});
  }
  setListRows(m_table, rows);
  for (int row = 0; row < m_table->rowCount(); ++row) {
    QFont itemFont = m_table->font();
    itemFont.setBold(!rows.at(row).at(NoteColumn).isEmpty());
    for (int column = 0; column < m_table->columnCount(); ++column) {
      m_table->item(row, column)->setFont(itemFont);
    }
  }
  m_table->setVisible(!meetings.isEmpty());
}

void MeetingsView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  m_minute.start();
  m_meetings->setWatched(true);
}

void MeetingsView::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  m_minute.stop();
  m_meetings->setWatched(false);
}
