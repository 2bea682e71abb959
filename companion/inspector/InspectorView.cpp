#include "companion/inspector/InspectorView.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <numeric>

#include "companion/inspector/InspectorDetails.h"
#include "companion/inspector/InspectorExport.h"
#include "companion/inspector/InspectorFilterBar.h"
#include "companion/inspector/InspectorTable.h"
#include "companion/runtime/SaveDialog.h"

namespace {

const QString kAllEvents = QStringLiteral("All events (*.jsonl)");
const QString kShownEvents = QStringLiteral("Events that are shown (*.jsonl)");

}  // namespace

InspectorView::InspectorView(InspectorLog* log)
    : m_log(log),
      m_model(new InspectorModel(log)),
      m_kinds(new InspectorFilterBar),
      m_text(new QLineEdit),
      m_table(new InspectorTable(m_model)),
      m_details(new InspectorDetails) {
  m_model->setParent(this);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  column->addWidget(m_kinds);
  column->addWidget(createBar());
  column->addWidget(createLists(), 1);
  connect(m_kinds, &InspectorFilterBar::changed, this, &InspectorView::applyFilter);
  connect(m_text, &QLineEdit::textChanged, this, &InspectorView::applyFilter);
  connect(m_model, &InspectorModel::missed, this, &InspectorView::showMissed);
  connect(m_table, &InspectorTable::eventChosen, m_details, &InspectorDetails::show);
  connect(m_table, &InspectorTable::copyWanted, this, &InspectorView::copy);
  connect(log, &InspectorLog::cleared, m_details, [this] { m_details->show(nullptr); });
  applyFilter();
}

QWidget* InspectorView::createBar() {
  auto* bar = new QWidget;
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  m_text->setPlaceholderText(QStringLiteral("Filter by name or content"));
  m_text->setAccessibleName(QStringLiteral("Filter by name or content"));
  m_text->setClearButtonEnabled(true);
  m_pause = createButton("Pause", "Keeps the list as it is while you read", &InspectorView::togglePause);
  row->addWidget(m_text, 1);
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

void InspectorView::applyFilter() {
  m_model->setFilter({.hidden = m_kinds->hiddenKinds(), .text = m_text->text()});
}

void InspectorView::togglePause() {
  const bool isPaused = m_model->flow() == InspectorModel::Flow::Paused;
  m_model->setFlow(isPaused ? InspectorModel::Flow::Live : InspectorModel::Flow::Paused);
  if (isPaused) return m_pause->setText(QStringLiteral("Pause"));
  showMissed(0);
}

void InspectorView::showMissed(qsizetype count) {
  m_pause->setText(count == 0 ? QStringLiteral("Continue") : QStringLiteral("Continue (%1 new)").arg(count));
}

QString InspectorView::textToCopy() const {
  QList<int> rows = m_table->selectedRows();
  if (rows.isEmpty()) {
    rows.resize(m_model->rowCount());
    std::iota(rows.begin(), rows.end(), 0);
  }
  QString text;
  for (const int row : rows) text += m_model->lineAt(row) + u'\n';
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
  const std::deque<InspectorLog::Event>& events = scope == Scope::All ? m_log->events() : m_model->events();
  const QString reason = exportEvents(path, events);
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
