#pragma once

#include <QList>
#include <QWidget>

#include "companion/exchange/SandboxDescription.h"

class QLabel;
class QTableWidget;
class QVBoxLayout;

// The accounts and sites of the sandbox, each with its behaviour. Main thread only.
class TryOutView final : public QWidget {
  Q_OBJECT

 public:
  TryOutView();

  // Empty lists while there is no sandbox.
  void setAccounts(const QList<SandboxDescription::Account>& accounts);
  void setSites(const QList<SandboxDescription::Site>& sites);

 Q_SIGNALS:
  void copied(const QString& text);
  void siteChosen(const QString& site);

 private:
  QWidget* createBar(const QString& text, QWidget* button);
  void copySelected();
  void useSelectedSite();
  void showIntroduction();

  QLabel* m_introduction;
  QTableWidget* m_accounts;
  QTableWidget* m_sites;
};
