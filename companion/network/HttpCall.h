#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <functional>

#include "companion/network/NetworkConfiguration.h"

class QNetworkReply;
class QNetworkRequest;

struct HttpAnswer {
  enum class Trouble {
    None,
    HostUnknown,
    Unreachable,
    TooSlow,
    TooLong,
    Certificate,
    CertificateOfOtherName,
    NotTaken
  };

  Trouble trouble = Trouble::None;  // with any other, no whole answer came
  int status = 0;
  QUrl location = {};         // absolute; empty where the answer sends nowhere
  QByteArray challenge = {};  // what the server wants to know before it answers
  QByteArray body = {};       // empty where the question took it piece by piece
};

struct HttpQuestion {
  // False ends the call: nothing more is wanted.
  using Taker = std::function<bool(const QByteArray& piece)>;

  QUrl address;
  QByteArray body = {};  // empty: nothing is sent, the address is only read
  QByteArray contentType = QByteArrayLiteral("text/xml; charset=utf-8");
  QByteArray authorization = {};
  // Gets the body of a good answer as it comes. It is then bounded by `takenBytes` in place of the answer's
  // limit, and the limit in time holds between its pieces.
  Taker take = {};
  qint64 takenBytes = 0;
};

// One request, bounded in time and size. Follows no redirect, keeps no cookies and answers no challenge, so
// that what is sent stays with the host it was meant for and is sent once. Destroying it ends it unanswered,
// but not from within `take`.
class HttpCall final : public QObject {
 public:
  using Done = std::function<void(const HttpAnswer&)>;

  HttpCall(QNetworkAccessManager& network, const NetworkConfiguration& configuration);
  ~HttpCall() override;

  void start(const HttpQuestion& question, Done done);

 private:
  QNetworkReply* send(QNetworkRequest request, const HttpQuestion& question);
  QNetworkRequest requestFor(const HttpQuestion& question) const;
  bool isTaken() const;
  void readPiece();
  HttpAnswer::Trouble takePiece();
  bool isTooLong() const;
  void readAnswer();
  HttpAnswer::Trouble trouble() const;
  void settle(const HttpAnswer& answer);

  QNetworkAccessManager& m_network;
  const NetworkConfiguration& m_configuration;
  QUrl m_address;
  QTimer m_deadline;
  QPointer<QNetworkReply> m_reply;
  bool m_isOtherName = false;
  HttpQuestion::Taker m_take;
  qint64 m_bytesLeft = 0;
  Done m_done;
};

// The names of the ways to sign in that a challenge offers, in small letters.
QList<QByteArray> offeredSchemes(const QByteArray& challenge);
