#pragma once

#include <QList>
#include <QWidget>

#include "companion/app/SandboxSites.h"
#include "companion/exchange/SandboxExchange.h"

class CopiedNote;
class CopyTable;
class QLabel;
class QScrollArea;
class QVBoxLayout;

// What the sandbox offers to try: a walk-through, its accounts and its sites. With neither it says why it is
// empty. Main thread only.
class TryOutView final : public QWidget {
  Q_OBJECT

 public:
  TryOutView();

  void setAccounts(const QList<SandboxAccount>& accounts);
  void setSites(const QList<SandboxSite>& sites);

 Q_SIGNALS:
  void siteChosen(const QString& site);

 private:
  QWidget* createContents();
  QWidget* addSection(QVBoxLayout* column, const QString& title, const QString& text, QWidget* content);
  void showCurrentCell(const CopyTable* table);
  void showWhatIsThere();

  QScrollArea* m_scroll;
  CopyTable* m_accounts;
  CopyTable* m_sites;
  CopiedNote* m_note;
  QLabel* m_nothing = nullptr;
  QList<QWidget*> m_accountSections;
  QWidget* m_siteSection = nullptr;
};
