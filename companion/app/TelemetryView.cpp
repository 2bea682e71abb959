#include "companion/app/TelemetryView.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>

#include "companion/services/TelemetryService.h"

namespace {

enum TelemetryColumn { TimeColumn, FeatureColumn, DetailsColumn, TelemetryColumnCount };

constexpr int kShownRecords = 1000;

}  // namespace

TelemetryView::TelemetryView(TelemetryService* telemetry)
    : m_telemetry(telemetry),
      m_isOn(new QCheckBox(QStringLiteral("Keep what I choose"))),
      m_delete(new QPushButton(QStringLiteral("Delete all"))),
      m_text(new QLabel),
      m_table(new QTableWidget(0, TelemetryColumnCount)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  column->addWidget(createBar());
  column->addWidget(m_text);
  column->addWidget(m_table, 1);
  m_text->setObjectName(QStringLiteral("telemetryText"));
  m_text->setTextFormat(Qt::PlainText);
  m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_text->setWordWrap(true);
  setUpTable();
  m_soon.setSingleShot(true);
  m_soon.setInterval(0);
  connect(&m_soon, &QTimer::timeout, this, &TelemetryView::showRecords);
  connect(telemetry, &TelemetryService::changed, this, &TelemetryView::showSoon);
}

QWidget* TelemetryView::createBar() {
  auto* bar = new QWidget;
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(m_isOn);
  row->addStretch(1);
  row->addWidget(m_delete);
  connect(m_isOn, &QCheckBox::clicked, m_telemetry, &TelemetryService::setOn);
  connect(m_delete, &QPushButton::clicked, m_telemetry, &TelemetryService::deleteAll);
  return bar;
}

void TelemetryView::setUpTable() {
  m_table->setHorizontalHeaderLabels(
      {QStringLiteral("Time"), QStringLiteral("Choice"), QStringLiteral("Details")});
  m_table->setAccessibleName(QStringLiteral("Telemetry records"));
  m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_table->setTabKeyNavigation(false);
  m_table->setShowGrid(false);
  m_table->verticalHeader()->hide();
  m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  m_table->horizontalHeader()->setHighlightSections(false);
  m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  m_table->setColumnWidth(TimeColumn, 150);
  m_table->setColumnWidth(FeatureColumn, 300);
  m_table->horizontalHeader()->setStretchLastSection(true);
}

void TelemetryView::showSoon() {
  if (isVisible()) m_soon.start();
}

void TelemetryView::showRecords() {
  const QList<TelemetryRecord> records = m_telemetry->newest(kShownRecords);
  const bool isOn = m_telemetry->isOn();
  m_isOn->setChecked(isOn);
  m_delete->setEnabled(!records.isEmpty());
  if (isOn) {
    m_text->setText(QStringLiteral("Your choices in Preferences, without anything personal, are kept in %1. "
                                   "They stay on this computer.")
                        .arg(m_telemetry->path()));
  } else if (records.isEmpty()) {
    m_text->setText(QStringLiteral("Nothing is written, and nothing is kept."));
  } else {
    m_text->setText(
        QStringLiteral("Nothing is written. What was kept before lies in %1.").arg(m_telemetry->path()));
  }
  m_table->setRowCount(static_cast<int>(records.size()));
  for (int row = 0; row < m_table->rowCount(); ++row) {
    const TelemetryRecord& record = records.at(row);
    const QString time = QLocale().toString(record.time.toLocalTime(), QLocale::ShortFormat);
    const QString texts[] = {time, record.feature, record.details};
    for (int column = 0; column < TelemetryColumnCount; ++column) {
      m_table->setItem(row, column, new QTableWidgetItem(texts[column]));
    }
  }
}

void TelemetryView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  showRecords();
}
