#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <optional>

#include "adal/ADAddress.h"
#include "adal/ADError.h"

class QNetworkReply;
class QNetworkRequest;

struct ADWebAnswer {
  std::optional<ADError> error;  // no whole answer came
  int status = 0;
  QByteArray body;
};

// One exchange at a time with an authority, bounded in time and size. Follows no redirect and keeps no
// cookies, so that what is sent stays with the host it was meant for. Destroying it ends the exchange
// unanswered.
class ADWebClient final : public QObject {
 public:
  using Done = std::function<void(const ADWebAnswer&)>;

  explicit ADWebClient(QObject* parent = nullptr);
  ~ADWebClient() override;

  void get(const QUrl& address, Done done);
  void post(const QUrl& address, const ADParameters& form, Done done);

 private:
  void watch(QNetworkReply* reply, Done done);
  void checkSize();
  void readAnswer();
  void settle(const ADWebAnswer& answer);

  QNetworkAccessManager m_manager;
  QTimer m_deadline;
  QPointer<QNetworkReply> m_reply;
  qint64 m_limit = 0;
  Done m_done;
};
