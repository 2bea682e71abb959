#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>

#include "host/KZFoundation/Dictionary.h"

class Border;

// What a meeting application's services would answer, played: no network, invented results. Main thread only.
class DemoServices final : public QObject {
  Q_OBJECT

 public:
  explicit DemoServices(Border* border);  // not owned; must outlive the services

  // The user chose another site.
  void changeSite(const QString& site);

 Q_SIGNALS:
  void noticed(const QString& text);  // for the user
  void siteWanted();

 private:
  void answer(quint64 command, const Content& content);
  void refuseUpdates();
  void openLink(const Dictionary& content);
  void search(const Dictionary& content);
  void later(std::function<void()> nextStep);
  void cancelSearch();
  void finishSearch();
  void askForCredential();
  void takeCredential(const Dictionary& content);
  void reportFound(const QString& username);
  void reportFailure(quint32 index, const QString& message);

  Border* m_border;
  QTimer m_searching;
  std::function<void()> m_nextStep;  // of the search, when the timer fires
  QString m_email;                   // of the search that runs
};
