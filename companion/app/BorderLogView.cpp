#include "companion/app/BorderLogView.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTableView>
#include <algorithm>

#include "companion/app/BorderLog.h"
#include "companion/app/BorderLogFilter.h"
#include "platform/PopUpButton.h"

BorderLogView::BorderLogView(BorderLog* log)
    : m_log(log),
      m_filter(new BorderLogFilter(this)),
      m_kind(new PopUpButton({})),
      m_text(new QLineEdit),
      m_table(new QTableView) {
  m_filter->setSourceModel(log);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  column->addWidget(createFilterBar());
  column->addWidget(m_table);
  setUpTable();
}

QWidget* BorderLogView::createFilterBar() {
  auto* bar = new QWidget;
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  m_kind->addItem(QStringLiteral("Everything"));
  for (int kind = 0; kind <= static_cast<int>(BorderEvent::Kind::Trace); ++kind) {
    m_kind->addItem(kindText(static_cast<BorderEvent::Kind>(kind)), kind);
  }
  m_kind->setAccessibleName(QStringLiteral("Kind"));
  m_text->setPlaceholderText(QStringLiteral("Filter by name or content"));
  m_text->setClearButtonEnabled(true);
  auto* copyButton = new QPushButton(QStringLiteral("Copy"));
  copyButton->setToolTip(QStringLiteral("Copies the selected rows, or all rows that are shown"));
  auto* clearButton = new QPushButton(QStringLiteral("Clear"));
  row->addWidget(m_kind);
  row->addWidget(m_text, 1);
  row->addWidget(copyButton);
  row->addWidget(clearButton);
  connect(m_kind, &QComboBox::currentIndexChanged, this, &BorderLogView::applyKind);
  connect(m_text, &QLineEdit::textChanged, m_filter, &BorderLogFilter::setText);
  connect(copyButton, &QPushButton::clicked, this, &BorderLogView::copy);
  connect(clearButton, &QPushButton::clicked, m_log, &BorderLog::clear);
  return bar;
}

void BorderLogView::setUpTable() {
  m_table->setModel(m_filter);
  m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_table->setShowGrid(false);
  m_table->setWordWrap(false);
  m_table->setTabKeyNavigation(false);
  m_table->setAccessibleName(QStringLiteral("What crossed the border"));
  m_table->verticalHeader()->hide();
  m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  m_table->horizontalHeader()->setHighlightSections(false);
  m_table->horizontalHeader()->setStretchLastSection(true);
  m_table->setColumnWidth(BorderLog::TimeColumn, 96);
  m_table->setColumnWidth(BorderLog::KindColumn, 136);
  m_table->setColumnWidth(BorderLog::NameColumn, 250);
  auto* shortcut = new QShortcut(QKeySequence::Copy, m_table, nullptr, nullptr, Qt::WidgetShortcut);
  connect(shortcut, &QShortcut::activated, this, &BorderLogView::copy);
  // The list follows its end unless the user has scrolled away from it.
  connect(m_filter, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
    const QScrollBar* bar = m_table->verticalScrollBar();
    m_isAtEnd = bar->value() == bar->maximum();
  });
  connect(m_filter, &QAbstractItemModel::rowsInserted, this, &BorderLogView::followEnd, Qt::QueuedConnection);
}

void BorderLogView::applyKind() {
  const QVariant kind = m_kind->currentData();
  m_filter->setKind(kind.isValid() ? std::optional(static_cast<BorderEvent::Kind>(kind.toInt()))
                                   : std::nullopt);
}

QString BorderLogView::textToCopy() const {
  QModelIndexList rows = m_table->selectionModel()->selectedRows();
  std::ranges::sort(rows, {}, &QModelIndex::row);
  if (rows.isEmpty()) {
    for (int row = 0; row < m_filter->rowCount(); ++row) rows.append(m_filter->index(row, 0));
  }
  QString text;
  for (const QModelIndex& row : rows) text += m_log->lineAt(m_filter->mapToSource(row).row()) + u'\n';
  return text;
}

void BorderLogView::copy() {
  QGuiApplication::clipboard()->setText(textToCopy());
}

void BorderLogView::followEnd() {
  if (m_isAtEnd) m_table->scrollToBottom();
}
