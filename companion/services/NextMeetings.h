#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>
#include <chrono>
#include <memory>

#include "companion/exchange/ExchangeMeetings.h"
#include "companion/services/ServiceNetwork.h"

class PluginHost;

// The next meetings of the applied account. Requested while they are on the screen: at once when the account
// changes, and every few minutes. Main thread only.
class NextMeetings final : public QObject {
  Q_OBJECT

 public:
  // The two are not owned and must outlive this. `tokenTime` is how long the plug-in may take to renew the
  // token of an online account before the user is told; a later one is still used.
  NextMeetings(PluginHost* host, ServiceNetwork* network,
               std::chrono::milliseconds tokenTime = std::chrono::minutes(1));

  // Whether the meetings are on the screen; at first they are not.
  void setWatched(bool isWatched);
  // Soon, and only while they are watched.
  void refresh();

  const QList<ExchangeMeeting>& meetings() const { return m_meetings; }
  const QString& text() const { return m_text; }  // why there are none; empty where there are
  bool isAsking() const { return m_isAsking; }

 Q_SIGNALS:
  void changed();

 private:
  void watch(PluginHost* host);
  void request();
  void requestToken();
  void takeToken(const Dictionary& values);
  void list(const QString& token);
  void show(const QList<ExchangeMeeting>& meetings, const QString& text);

  PluginHost* m_host;
  ServiceNetwork* m_network;
  Dictionary m_account;  // of the current request
  int m_days = 0;
  QString m_tokenEmail;  // the account whose token is awaited; null for none
  QTimer m_tokenDeadline;
  std::unique_ptr<ExchangeMeetings> m_exchange;
  std::shared_ptr<const void> m_observing;
  QTimer m_soon;
  QTimer m_again;
  bool m_isWatched = false;
  bool m_isAsking = false;
  QList<ExchangeMeeting> m_meetings;
  QString m_text;
};

// The advice for an account whose saved password is refused.
QString refusedPasswordText();

// The minutes before its start in which a meeting is announced; 0: none is.
int announcedMinutes();
