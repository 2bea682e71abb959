#include "companion/inspector/InspectorView.h"

#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QSplitter>

#include "companion/inspector/InspectorDetails.h"
#include "companion/inspector/InspectorFilter.h"
#include "companion/inspector/InspectorTable.h"
#include "companion/runtime/SaveDialog.h"

namespace {

using Group = InspectorEvent::Group;

const QString kAllEvents = QStringLiteral("All events (*.jsonl)");
const QString kShownEvents = QStringLiteral("Events that are shown (*.jsonl)");

struct GroupBox {
  Group group;
  const char* title;
  const char* meaning;
};

constexpr GroupBox kGroupBoxes[] = {
    {Group::Commands, "Commands", "What host and plug-in ask of each other"},
    {Group::Notifications, "Notifications",
     "What the host's services report to the plug-in, the personal room too"},
    {Group::SignIn, "Sign-in", "Challenges, their answers, and addresses that were opened"},
    {Group::Warnings, "Warnings", "The warning window"},
    {Group::Store, "Store", "Settings that were written, what changed in them, and keychain items"},
    {Group::Telemetry, "Telemetry", "What is reported about the use of the window"},
    {Group::Traces, "Traces", "What the plug-in and the host library do inside"}};

// JSON Lines, readable by the owner alone; replaces the file as a whole or not at all. The reason when that
// failed, else null.
[[nodiscard]] QString writeEvents(const QString& path, const std::deque<InspectorLog::Event>& events) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return file.errorString();
  if (!file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner)) return file.errorString();
  for (const InspectorLog::Event& event : events) {
    if (file.write(event->exportedLine()) < 0) return file.errorString();
  }
  return file.commit() ? QString() : file.errorString();
}

}  // namespace

InspectorView::InspectorView(InspectorLog* log)
    : m_log(log),
      m_filter(new InspectorFilter(log)),
      m_table(new InspectorTable(m_filter)),
      m_details(new InspectorDetails) {
  m_filter->setParent(this);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  column->addWidget(createBoxes());
  column->addWidget(createBar());
  column->addWidget(createLists(), 1);
  connect(log, &InspectorLog::waiting, this, &InspectorView::showWaiting);
  connect(log, &InspectorLog::modelReset, m_details, [this] { m_details->show(nullptr); });
  connect(m_table, &InspectorTable::chosen, m_details,
          [this](int row) { m_details->show(m_filter->eventAt(row)); });
  connect(m_table, &InspectorTable::copyWanted, this, &InspectorView::copy);
}

QWidget* InspectorView::createBoxes() {
  auto* boxes = new QWidget;
  auto* row = new QHBoxLayout(boxes);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(16);
  for (const auto& [group, title, meaning] : kGroupBoxes) {
    auto* box = new QCheckBox(QString::fromLatin1(title));
    box->setToolTip(QString::fromLatin1(meaning));
    box->setChecked(true);
    connect(box, &QCheckBox::toggled, m_filter,
            [filter = m_filter, group = group](bool isShown) { filter->setShown(group, isShown); });
    // The rest would be lost among them.
    if (group == Group::Traces) box->setChecked(false);
    row->addWidget(box);
  }
  row->addStretch(1);
  return boxes;
}

QWidget* InspectorView::createBar() {
  auto* bar = new QWidget;
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  auto* text = new QLineEdit;
  text->setPlaceholderText(QStringLiteral("Filter by name or content"));
  text->setAccessibleName(QStringLiteral("Filter by name or content"));
  text->setClearButtonEnabled(true);
  connect(text, &QLineEdit::textChanged, m_filter, &InspectorFilter::setText);
  m_pause = createButton("Pause", "Keeps the list as it is while you read", &InspectorView::togglePause);
  row->addWidget(text, 1);
  row->addWidget(m_pause);
  row->addWidget(
      createButton("Copy", "Copies the selected rows, or all rows that are shown", &InspectorView::copy));
  row->addWidget(createButton("Clear", "Forgets all events", &InspectorView::clear));
  row->addWidget(createButton("Export…", "Writes the events to a file", &InspectorView::askForFile));
  return bar;
}

QWidget* InspectorView::createLists() {
  auto* lists = new QSplitter(Qt::Horizontal);
  lists->setHandleWidth(8);
  lists->setChildrenCollapsible(false);
  lists->addWidget(m_table);
  lists->addWidget(m_details);
  lists->setStretchFactor(0, 3);
  lists->setStretchFactor(1, 2);
  m_details->setMinimumWidth(200);
  lists->setSizes({590, 262});
  return lists;
}

QPushButton* InspectorView::createButton(const QString& title, const QString& toolTip,
                                         void (InspectorView::*action)()) {
  auto* button = new QPushButton(title);
  button->setToolTip(toolTip);
  connect(button, &QPushButton::clicked, this, action);
  return button;
}

void InspectorView::togglePause() {
  const bool isPaused = m_log->flow() == InspectorLog::Flow::Paused;
  m_pause->setText(QStringLiteral("Pause"));
  m_log->setFlow(isPaused ? InspectorLog::Flow::Live : InspectorLog::Flow::Paused);
}

void InspectorView::showWaiting(qsizetype count) {
  m_pause->setText(count == 0 ? QStringLiteral("Continue") : QStringLiteral("Continue (%1 new)").arg(count));
}

std::deque<InspectorLog::Event> InspectorView::shownEvents() const {
  std::deque<InspectorLog::Event> events;
  for (int row = 0; row < m_filter->rowCount(); ++row) events.push_back(m_filter->eventAt(row));
  return events;
}

QString InspectorView::textToCopy() const {
  std::deque<InspectorLog::Event> events;
  for (const int row : m_table->selectedRows()) events.push_back(m_filter->eventAt(row));
  if (events.empty()) events = shownEvents();
  QString text;
  for (const InspectorLog::Event& event : events) text += InspectorLog::lineOf(*event) + u'\n';
  return text;
}

void InspectorView::copy() {
  QGuiApplication::clipboard()->setText(textToCopy());
  Q_EMIT noticed(QStringLiteral("The events are copied, without passwords and tokens."));
}

void InspectorView::clear() {
  m_log->clear();
}

void InspectorView::exportTo(const QString& path, Scope scope) {
  const QString reason = writeEvents(path, scope == Scope::All ? m_log->events() : shownEvents());
  if (reason.isEmpty()) {
    Q_EMIT noticed(QStringLiteral("The events are in %1, without passwords and tokens.").arg(path));
  } else {
    Q_EMIT noticed(QStringLiteral("The events could not be written to %1 (%2). Choose another folder.")
                       .arg(path, reason));
  }
}

void InspectorView::askForFile() {
  QFileDialog* dialog = createSaveDialog(this, QStringLiteral("Export events"), QStringLiteral("inspector"));
  dialog->setNameFilters({kShownEvents, kAllEvents});
  connect(dialog, &QFileDialog::fileSelected, this, [this, dialog](const QString& path) {
    exportTo(path, dialog->selectedNameFilter() == kAllEvents ? Scope::All : Scope::Shown);
  });
  dialog->open();
}
