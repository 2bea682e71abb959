#pragma once

#include <QObject>
#include <QString>

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

  Border* m_border;
};
