#include "companion/inspector/InspectorView.h"

#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <algorithm>
#include <memory>
#include <numeric>

#include "companion/inspector/InspectorFilter.h"
#include "companion/runtime/ColumnWidths.h"
#include "companion/runtime/FlowLayout.h"
#include "companion/runtime/SaveDialog.h"
#include "companion/texts/CompanionText.h"

namespace {

using Group = InspectorEvent::Group;

struct GroupBox {
  Group group;
  const char* title;
  const char* meaning;
};

constexpr GroupBox kGroupBoxes[] = {
    {Group::Commands, textKey("Commands"), textKey("What host and plug-in ask of each other")},
    {Group::Notifications, textKey("Notifications"),
     textKey("What the host's services report to the plug-in, the personal room too")},
    {Group::SignIn, textKey("Sign-in"), textKey("Challenges, their answers, and addresses that were opened")},
    {Group::Warnings, textKey("Warnings"), textKey("The warning window")},
    {Group::Store, textKey("Store"),
     textKey("Settings that were written, what changed in them, and keychain items")},
    {Group::Telemetry, textKey("Telemetry"), textKey("What is reported about the use of the window")},
    {Group::Traces, textKey("Traces"), textKey("What the plug-in and the host library do inside")}};

// Without a current row Tab begins at the newest event that is seen, not at the oldest one.
class EventTable final : public QTableView {
 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override {
    if (currentIndex().isValid()) return QTableView::moveCursor(action, modifiers);
    const int seen = rowAt(viewport()->height() - 1);
    return model()->index(seen < 0 ? model()->rowCount() - 1 : seen, 0);
  }
};

// JSON Lines, readable by the owner alone; replaces the file as a whole or not at all. The reason when that
// failed, else null.
[[nodiscard]] QString writeEvents(const QString& path, const InspectorFilter& events) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return file.errorString();
  if (!file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner)) return file.errorString();
  for (int row = 0; row < events.rowCount(); ++row) {
    if (file.write(events.eventAt(row)->exportedLine()) < 0) return file.errorString();
  }
  return file.commit() ? QString() : file.errorString();
}

template <typename Receiver>
QPushButton* createButton(const QString& title, const QString& toolTip, Receiver* receiver,
                          void (Receiver::*action)()) {
  auto* button = new QPushButton(title);
  button->setToolTip(toolTip);
  button->setAutoDefault(true);  // Return presses it too
  QObject::connect(button, &QPushButton::clicked, receiver, action);
  return button;
}

QPlainTextEdit* createDetails() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPixelSize(QFontInfo(QGuiApplication::font()).pixelSize() - 1);
  auto* details = new QPlainTextEdit;
  details->setReadOnly(true);
  details->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  details->setTabChangesFocus(true);
  details->setFont(font);
  details->setMinimumWidth(200);
  details->setPlaceholderText(companionText("Choose a row to see its whole content."));
  details->setAccessibleName(companionText("Whole content"));
  return details;
}

// The list follows its end unless the reader has scrolled away from it; then what is read stays where it is
// when rows above it go. Call it before the list gets its model, which would choose a neighbour of a row that
// goes.
void keepPlace(QTableView* table, QAbstractItemModel* model) {
  const auto isAtEnd = std::make_shared<bool>(true);
  QScrollBar* bar = table->verticalScrollBar();
  QObject::connect(bar, &QScrollBar::valueChanged, table,
                   [isAtEnd, bar](int row) { *isAtEnd = row == bar->maximum(); });
  QObject::connect(bar, &QScrollBar::rangeChanged, table, [isAtEnd, bar] {
    if (*isAtEnd) bar->setValue(bar->maximum());
  });
  QObject::connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, table,
                   [table](const QModelIndex&, int first, int last) {
                     const int current = table->currentIndex().row();
                     if (current >= first && current <= last) table->selectionModel()->clearCurrentIndex();
                   });
  QObject::connect(model, &QAbstractItemModel::rowsRemoved, table,
                   [isAtEnd, bar](const QModelIndex&, int first, int last) {
                     if (!*isAtEnd) bar->setValue(bar->value() - (last - first + 1));
                   });
}

}  // namespace

InspectorView::InspectorView(InspectorLog* log)
    : m_log(log), m_filter(new InspectorFilter(log)), m_table(new EventTable), m_details(createDetails()) {
  m_filter->setParent(this);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  column->addWidget(createBoxes());
  column->addWidget(createBar());
  column->addWidget(createLists(), 1);
  setUpTable();
  connect(log, &InspectorLog::waiting, this, &InspectorView::showWaiting);
  connect(log, &InspectorLog::modelReset, m_details, &QPlainTextEdit::clear);
}

void InspectorView::setUpTable() {
  constexpr int kRowGap = 6;
  keepPlace(m_table, m_filter);
  m_table->setModel(m_filter);
  m_table->setSelectionBehavior(QTableView::SelectRows);
  m_table->setShowGrid(false);
  m_table->setWordWrap(false);
  m_table->setTabKeyNavigation(false);
  m_table->setHorizontalScrollMode(QTableView::ScrollPerPixel);
  m_table->setAccessibleName(companionText("Events"));
  m_table->verticalHeader()->hide();
  m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + kRowGap);
  m_table->horizontalHeader()->setHighlightSections(false);
  m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  m_table->horizontalHeader()->setStretchLastSection(true);
  setColumnWidths(m_table, {14, 23, 32});
  connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &InspectorView::showDetails);
  auto* shortcut = new QShortcut(QKeySequence::Copy, m_table, nullptr, nullptr, Qt::WidgetShortcut);
  connect(shortcut, &QShortcut::activated, this, &InspectorView::copy);
}

QWidget* InspectorView::createBoxes() {
  auto* boxes = new QWidget;
  auto* row = new FlowLayout(boxes, 16, 6);
  for (const auto& [group, title, meaning] : kGroupBoxes) {
    auto* box = new QCheckBox(companionText(title));
    box->setToolTip(companionText(meaning));
    box->setChecked(true);
    connect(box, &QCheckBox::toggled, m_filter,
            [filter = m_filter, group = group](bool isShown) { filter->setShown(group, isShown); });
    // The rest would be lost among them.
    if (group == Group::Traces) box->setChecked(false);
    row->addWidget(box);
  }
  return boxes;
}

QWidget* InspectorView::createBar() {
  auto* bar = new QWidget;
  auto* row = new FlowLayout(bar, 8, 6);
  constexpr int kFieldRoom = 120;
  auto* text = new QLineEdit;
  text->setPlaceholderText(companionText("Filter by name or content"));
  text->setAccessibleName(companionText("Filter by name or content"));
  text->setClearButtonEnabled(true);
  text->setMinimumWidth(text->fontMetrics().horizontalAdvance(text->placeholderText()) + kFieldRoom);
  connect(text, &QLineEdit::textChanged, m_filter, &InspectorFilter::setText);
  m_pause = createButton(companionText("Paus&e"), companionText("Keeps the list as it is while you read"),
                         this, &InspectorView::togglePause);
  row->addWidget(text);
  row->addWidget(m_pause);
  row->addWidget(createButton(companionText("C&opy"),
                              companionText("Copies the selected rows, or all rows that are shown"), this,
                              &InspectorView::copy));
  row->addWidget(createButton(companionText("C&lear"), companionText("Forgets all events"), m_log,
                              &InspectorLog::clear));
  row->addWidget(createButton(companionText("E&xport…"),
                              companionText("Writes the events that are shown to a file"), this,
                              &InspectorView::askForFile));
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
  lists->setSizes({590, 262});
  return lists;
}

void InspectorView::togglePause() {
  const bool isPaused = m_log->flow() == InspectorLog::Flow::Paused;
  m_pause->setText(companionText("Paus&e"));
  m_log->setFlow(isPaused ? InspectorLog::Flow::Live : InspectorLog::Flow::Paused);
}

void InspectorView::showWaiting(qsizetype count) {
  m_pause->setText(count == 0 ? companionText("Co&ntinue") : companionText("Co&ntinue (%1 new)").arg(count));
}

void InspectorView::showDetails(const QModelIndex& current) {
  if (!current.isValid()) return;
  const InspectorEvent& event = *m_filter->eventAt(current.row());
  m_details->setPlainText(event.title + "\n\n" + event.wholeContent());
}

void InspectorView::copy() {
  QList<int> rows;
  for (const QModelIndex& index : m_table->selectionModel()->selectedRows()) rows.append(index.row());
  std::ranges::sort(rows);
  if (rows.isEmpty()) {
    rows.resize(m_filter->rowCount());
    std::iota(rows.begin(), rows.end(), 0);
  }
  QString text;
  for (const int row : rows) text += InspectorLog::lineOf(*m_filter->eventAt(row)) + u'\n';
  QGuiApplication::clipboard()->setText(text);
  Q_EMIT message(companionText("The events are copied, without passwords and tokens."));
}

void InspectorView::exportTo(const QString& path) {
  const QString reason = writeEvents(path, *m_filter);
  if (reason.isEmpty()) {
    Q_EMIT message(companionText("The events are in %1, without passwords and tokens.").arg(path));
  } else {
    Q_EMIT message(companionText("The events could not be written to %1 (%2). Choose another folder.")
                       .arg(path, reason));
  }
}

void InspectorView::askForFile() {
  QFileDialog* dialog = createSaveDialog(this, companionText("Export events"), QStringLiteral("inspector"));
  dialog->setNameFilter(companionText("Events (*.jsonl)"));
  connect(dialog, &QFileDialog::fileSelected, this, &InspectorView::exportTo);
  dialog->open();
}
