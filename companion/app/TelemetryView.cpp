#include "companion/app/TelemetryView.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

#include "companion/app/ListTable.h"
#include "companion/app/Rows.h"
#include "companion/runtime/ColumnWidths.h"
#include "companion/runtime/TimeText.h"
#include "companion/services/TelemetryService.h"
#include "companion/texts/CompanionText.h"

namespace {

constexpr int kShownRecords = 1000;

}  // namespace

TelemetryView::TelemetryView(TelemetryService* telemetry)
    : m_telemetry(telemetry),
      m_isOn(new QCheckBox(companionText("&Keep what I choose"))),
      m_delete(createButton(companionText("&Delete all"))),
      m_text(new QLabel),
      m_table(createListTable(companionText("Telemetry records"),
                              {companionText("Time"), companionText("Choice"), companionText("Details")})) {
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
  setColumnWidths(m_table, {22, 44});
  m_table->horizontalHeader()->setStretchLastSection(true);
  m_soon.setSingleShot(true);
  m_soon.setInterval(0);
  connect(&m_soon, &QTimer::timeout, this, &TelemetryView::showRecords);
  connect(telemetry, &TelemetryService::changed, this, &TelemetryView::showSoon);
}

QWidget* TelemetryView::createBar() {
  auto* bar = new QWidget;
  QHBoxLayout* row = addRow(bar, 8);
  row->addWidget(m_isOn);
  row->addStretch(1);
  row->addWidget(m_delete);
  connect(m_isOn, &QCheckBox::clicked, m_telemetry, &TelemetryService::setOn);
  connect(m_delete, &QPushButton::clicked, m_telemetry, &TelemetryService::deleteAll);
  return bar;
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
    m_text->setText(companionText("Your choices in Preferences, without anything personal, are kept in %1. "
                                  "They stay on this computer.")
                        .arg(m_telemetry->path()));
  } else if (records.isEmpty()) {
    m_text->setText(companionText("Nothing is written, and nothing is kept."));
  } else {
    m_text->setText(
        companionText("Nothing is written. What was kept before lies in %1.").arg(m_telemetry->path()));
  }
  QList<QStringList> rows;
  for (const TelemetryRecord& record : records) {
    rows.append({shortDateTime(record.time), record.feature, record.details});
  }
  setListRows(m_table, rows);
}

void TelemetryView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  showRecords();
}
