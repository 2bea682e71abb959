#include "companion/app/TryOutView.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "companion/app/CopiedNote.h"
#include "companion/app/CopyTable.h"
#include "companion/app/WalkThrough.h"
#include "platform/Text.h"

namespace {

constexpr int kSectionGap = 18;
constexpr int kScrollBarGap = 14;

QLabel* wrappedLabel(const QString& text) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

TryOutView::TryOutView()
    : m_scroll(new QScrollArea),
      m_accounts(new CopyTable(QStringLiteral("Accounts to try"),
                               {QStringLiteral("Address"), QStringLiteral("User name"),
                                QStringLiteral("Password"), QStringLiteral("What happens")})),
      m_sites(new CopyTable(QStringLiteral("Sites to try"),
                            {QStringLiteral("Site"), QStringLiteral("What happens")})),
      m_note(new CopiedNote(this)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(m_scroll);
  m_scroll->setWidgetResizable(true);
  m_scroll->setFrameShape(QFrame::NoFrame);
  m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_scroll->setWidget(createContents());
  for (CopyTable* const table : {m_accounts, m_sites}) {
    connect(table, &CopyTable::copied, m_note, &CopiedNote::tell);
    connect(table, &QTableWidget::currentCellChanged, this, [this, table] { showCurrentCell(table); });
  }
  connect(m_sites, &CopyTable::buttonPressed, this, &TryOutView::siteChosen);
  showWhatIsThere();
}

QWidget* TryOutView::createContents() {
  auto* contents = new QWidget;
  auto* column = new QVBoxLayout(contents);
  column->setContentsMargins(0, 0, kScrollBarGap, 0);
  column->setSpacing(kSectionGap);
  m_nothing = wrappedLabel(QStringLiteral(
      "The sandbox is not running. While it runs, this page lists accounts and sites to try."));
  column->addWidget(m_nothing);
  auto* steps = new WalkThrough;
  connect(steps, &WalkThrough::copied, m_note, &CopiedNote::tell);
  connect(steps, &WalkThrough::siteChosen, this, &TryOutView::siteChosen);
  m_accountSections = {
      addSection(
          column, QStringLiteral("In two minutes"),
          QStringLiteral("Everything here is played by a sandbox on this machine; no network is needed. "
                         "Press an address to copy it, and a site to use it."),
          steps),
      addSection(column, QStringLiteral("Accounts"),
                 QStringLiteral("For Microsoft Outlook in Meetings. A double click or Return copies a cell."),
                 m_accounts)};
  m_siteSection = addSection(column, QStringLiteral("Sites"),
                             QStringLiteral("The meeting service that the application belongs to."), m_sites);
  column->addStretch(1);
  return contents;
}

QWidget* TryOutView::addSection(QVBoxLayout* column, const QString& title, const QString& text,
                                QWidget* content) {
  auto* section = new QWidget;
  auto* parts = new QVBoxLayout(section);
  parts->setContentsMargins(0, 0, 0, 0);
  parts->setSpacing(6);
  auto* heading = new QLabel(title);
  heading->setFont(fontFor(FontRole::BoldSystem, systemFontSize));
  parts->addWidget(heading);
  parts->addWidget(wrappedLabel(text));
  parts->addWidget(content);
  column->addWidget(section);
  return section;
}

void TryOutView::setAccounts(const QList<SandboxAccount>& accounts) {
  QList<QStringList> rows;
  for (const SandboxAccount& account : accounts) {
    rows.append({account.email, account.username, account.password, account.meaning});
  }
  m_accounts->setRows(rows);
  showWhatIsThere();
}

void TryOutView::setSites(const QList<SandboxSite>& sites) {
  QList<QStringList> rows;
  for (const SandboxSite& site : sites) rows.append({site.site, site.meaning});
  m_sites->setRows(rows);
  m_sites->addButtons(QStringLiteral("Use this site"), QStringLiteral("Use %1"));
  showWhatIsThere();
}

void TryOutView::showWhatIsThere() {
  const bool hasAccounts = m_accounts->rowCount() > 0;
  const bool hasSites = m_sites->rowCount() > 0;
  m_nothing->setVisible(!hasAccounts && !hasSites);
  for (QWidget* const section : m_accountSections) section->setVisible(hasAccounts);
  m_siteSection->setVisible(hasSites);
}

void TryOutView::showCurrentCell(const CopyTable* table) {
  const QTableWidgetItem* const item = table->currentItem();
  if (item == nullptr) return;
  const QPoint center = table->viewport()->mapTo(m_scroll->widget(), table->visualItemRect(item).center());
  m_scroll->ensureVisible(0, center.y());
}
