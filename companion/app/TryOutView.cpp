#include "companion/app/TryOutView.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "companion/app/ListTable.h"
#include "companion/app/Rows.h"
#include "companion/texts/CompanionText.h"

namespace {

QLabel* createPlainLabel(const QString& text = {}) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

QTableWidget* createWrappingTable(const QString& name, const QStringList& headings) {
  QTableWidget* table = createListTable(name, headings);
  table->setSelectionBehavior(QAbstractItemView::SelectItems);
  table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table->horizontalHeader()->setStretchLastSection(true);
  return table;
}

// The sandbox describes its accounts and sites in English.
QString sandboxText(const QString& english) {
  return companionText(english.toUtf8().constData());
}

}  // namespace

TryOutView::TryOutView()
    : m_introduction(createPlainLabel()),
      m_accounts(createWrappingTable(companionText("Accounts to try"),
                                     {companionText("Address"), companionText("User name"),
                                      companionText("Password"), companionText("What it shows")})),
      m_sites(createWrappingTable(companionText("Sites to try"),
                                  {companionText("Site"), companionText("What it shows")})) {
  QPushButton* copy = createButton(companionText("C&opy"));
  copy->setToolTip(companionText("Copies the selected address, user name or password"));
  QPushButton* use = createButton(companionText("Use t&his site"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  column->addWidget(m_introduction);
  column->addWidget(createBar(companionText("Accounts, for Microsoft Outlook in Meetings:"), copy));
  column->addWidget(m_accounts, 3);
  column->addWidget(createBar(companionText("Sites, the meeting service to belong to:"), use));
  column->addWidget(m_sites, 2);
  connect(copy, &QPushButton::clicked, this, &TryOutView::copySelected);
  connect(use, &QPushButton::clicked, this, &TryOutView::useSelectedSite);
  connect(m_accounts, &QTableWidget::itemActivated, this, &TryOutView::copySelected);
  connect(m_sites, &QTableWidget::itemActivated, this, &TryOutView::useSelectedSite);
  showIntroduction();
}

QWidget* TryOutView::createBar(const QString& text, QWidget* button) {
  auto* bar = new QWidget;
  QHBoxLayout* row = addRow(bar, 8);
  row->addWidget(createPlainLabel(text), 1);
  row->addWidget(button);
  return bar;
}

void TryOutView::setAccounts(const QList<SandboxDescription::Account>& accounts) {
  QList<QStringList> rows;
  for (const SandboxDescription::Account& account : accounts) {
    rows.append({account.email, account.username, account.password, sandboxText(account.meaning)});
  }
  setListRows(m_accounts, rows);
  m_accounts->setCurrentCell(0, 0);
  showIntroduction();
}

void TryOutView::setSites(const QList<SandboxDescription::Site>& sites) {
  QList<QStringList> rows;
  for (const SandboxDescription::Site& site : sites) rows.append({site.site, sandboxText(site.meaning)});
  setListRows(m_sites, rows);
  m_sites->setCurrentCell(0, 0);
  showIntroduction();
}

void TryOutView::showIntroduction() {
  const bool isEmpty = m_accounts->rowCount() == 0 && m_sites->rowCount() == 0;
  m_introduction->setText(
      isEmpty
          ? companionText("The sandbox is not running. While it runs, this page lists accounts and sites "
                          "to try.")
          : companionText("All of these are played by a sandbox on this computer. Copy an address, open "
                          "Preferences, choose Microsoft Outlook in Meetings, paste it and press Return."));
}

void TryOutView::copySelected() {
  const QTableWidgetItem* item = m_accounts->currentItem();
  if (!item || item->text().isEmpty()) return;
  QGuiApplication::clipboard()->setText(item->text());
  Q_EMIT copied(item->text());
}

void TryOutView::useSelectedSite() {
  const int row = m_sites->currentRow();
  if (row >= 0) Q_EMIT siteChosen(m_sites->item(row, 0)->text());
}
