#include "adal/ADHttpExchange.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSslKey>
#include <QSslServer>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

namespace {

// A server that answers every request with the same bytes, which need not be HTTP, and then hangs up.
class ADHttpExchangeTest : public testing::Test {
 protected:
  void serve(std::unique_ptr<QTcpServer> made = std::make_unique<QTcpServer>()) {
    server = std::move(made);
    QObject::connect(server.get(), &QTcpServer::pendingConnectionAvailable, server.get(), [this] {
      QTcpSocket* const socket = server->nextPendingConnection();
      QObject::connect(socket, &QTcpSocket::readyRead, server.get(), [this, socket] {
        request += socket->readAll();
        if (!request.contains("\r\n\r\n")) return;
        socket->write(answer);
        socket->disconnectFromHost();
      });
      if (socket->bytesAvailable() > 0) Q_EMIT socket->readyRead();
    });
    ASSERT_TRUE(server->listen(QHostAddress::LocalHost));
  }

  ADHttpResponse ask(const QString& host = "http://127.0.0.1", const std::optional<ADHttpPeer>& peer = {}) {
    std::optional<ADHttpResponse> response;
    request.clear();
    std::unique_ptr<ADHttpExchange> exchange;
    exchange = std::make_unique<ADHttpExchange>(
        ADHttpRequest{.address = QUrl(QString("%1:%2/a?b=c").arg(host).arg(server->serverPort())),
                      .headers = {{"X-Value", "one\r\nX-Other: two"}},
                      .time = std::chrono::seconds(2),
                      .responseBytes = 1000,
                      .peer = peer},
        [&](const ADHttpResponse& got) {
          response = got;
          exchange.reset();
        });
    EXPECT_TRUE(QTest::qWaitFor([&] { return response.has_value(); }));
    return response.value_or(ADHttpResponse());
  }

  std::unique_ptr<QTcpServer> server;
  QByteArray answer = "HTTP/1.1 200 OK\r\n\r\n";
  QByteArray request;
};

TEST_F(ADHttpExchangeTest, ReadsEveryFormOfABody) {
  ASSERT_NO_FATAL_FAILURE(serve());
  const QByteArray chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: Chunked\r\n\r\n";
  const QByteArray answers[] = {
      "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello and more",
      "HTTP/1.0 200\nContent-Length: 5\n\nhello",
      "HTTP/1.1 200 OK\r\n\r\nhello",
      "HTTP/1.1 100 Continue\r\nContent-Length: 9\r\n\r\nHTTP/1.1 200 OK\r\nContent-Length:5\r\n\r\nhello",
      chunked + "2\r\nhe\r\n3;x=y\r\nllo\r\n0\r\nX: y\r\n\r\n",
  };
  for (const QByteArray& bytes : answers) {
    answer = bytes;
    const ADHttpResponse response = ask();
    EXPECT_EQ(response.failure, ADHttpFailure::None) << bytes.toStdString();
    EXPECT_EQ(response.status, 200);
    EXPECT_EQ(response.body, "hello") << bytes.toStdString();
  }
}

TEST_F(ADHttpExchangeTest, RefusesWhatIsMalformedTooLongOrCutOff) {
  ASSERT_NO_FATAL_FAILURE(serve());
  const QByteArray ok = "HTTP/1.1 200 OK\r\n";
  const QByteArray chunked = ok + "Transfer-Encoding: chunked\r\n\r\n";
  const QByteArray kilobyte(1001, 'x');
  const std::pair<QByteArray, ADHttpFailure> answers[] = {
      {"hello\r\n\r\n", ADHttpFailure::Malformed},
      {"HTTP/1.1 2000 OK\r\n\r\n", ADHttpFailure::Malformed},
      {ok + "no colon\r\n\r\n", ADHttpFailure::Malformed},
      {ok + " folded\r\n\r\n", ADHttpFailure::Malformed},
      {ok + "Content-Length: -1\r\n\r\n", ADHttpFailure::Malformed},
      {ok + "Content-Length: 1\r\nContent-Length: 2\r\n\r\nxx", ADHttpFailure::Malformed},
      {ok + "Transfer-Encoding: gzip, chunked\r\n\r\n0\r\n\r\n", ADHttpFailure::Malformed},
      {chunked + "-1\r\n", ADHttpFailure::Malformed},
      {chunked + "1\r\nxyz\r\n", ADHttpFailure::Malformed},
      {QByteArray(70'000, 'x'), ADHttpFailure::Malformed},
      {ok + QByteArray("X: y\r\n").repeated(20'000), ADHttpFailure::Malformed},
      {QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(20'000), ADHttpFailure::Malformed},
      {chunked + "0\r\n" + QByteArray("X: y\r\n").repeated(20'000), ADHttpFailure::Malformed},
      {ok + "Content-Length: 9999999999\r\n\r\n", ADHttpFailure::TooLong},
      {ok + "\r\n" + kilobyte, ADHttpFailure::TooLong},
      {chunked + "3e9\r\n" + kilobyte, ADHttpFailure::TooLong},
      {"", ADHttpFailure::Unreachable},
      {ok + "Content-Length: 5\r\n\r\nhell", ADHttpFailure::Unreachable},
      {chunked + "5\r\nhello\r\n", ADHttpFailure::Unreachable},
  };
  for (const auto& [bytes, failure] : answers) {
    answer = bytes;
    EXPECT_EQ(ask().failure, failure) << bytes.left(80).toStdString();
  }
}

TEST_F(ADHttpExchangeTest, SendsNoHeaderThatAValueBringsAndTriesEveryAddressOfAHost) {
  ASSERT_NO_FATAL_FAILURE(serve());
  // It has an address that nobody listens on.
  EXPECT_EQ(ask("http://localhost").status, 200);
  EXPECT_TRUE(request.startsWith("GET /a?b=c HTTP/1.1\r\nHost: localhost:")) << request.toStdString();
  EXPECT_TRUE(request.contains("\r\nX-Value: one  X-Other: two\r\n"));
  const quint16 port = server->serverPort();
  server->close();
  ADHttpFailure failure = ADHttpFailure::None;
  const ADHttpExchange refused({.address = QUrl(QString("http://localhost:%1/").arg(port))},
                               [&failure](const ADHttpResponse& got) { failure = got.failure; });
  EXPECT_TRUE(QTest::qWaitFor([&failure] { return failure == ADHttpFailure::Unreachable; }));
}

// Kerberos reads its settings before it asks anybody; here it would wait for ever.
TEST_F(ADHttpExchangeTest, LeavesAnOfferOfKerberosAlone) {
  ASSERT_NO_FATAL_FAILURE(serve());
  const QTemporaryDir folder;
  const QByteArray settings = QFile::encodeName(folder.filePath("krb5.conf"));
  ASSERT_EQ(mkfifo(settings.constData(), S_IRUSR | S_IWUSR), 0);
  qputenv("KRB5_CONFIG", settings);
  answer =
      "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Negotiate\r\nWWW-Authenticate: NTLM\r\n"
      "WWW-Authenticate: Basic realm=\"x\"\r\n\r\n";
  QElapsedTimer clock;
  clock.start();
  const ADHttpResponse response = ask();
  qunsetenv("KRB5_CONFIG");
  EXPECT_LT(clock.elapsed(), 1000);
  EXPECT_EQ(response.status, 401);
  EXPECT_EQ(response.header("www-authenticate"), "Negotiate, NTLM, Basic realm=\"x\"");
}

TEST_F(ADHttpExchangeTest, TellsAnExpiredCertificateFromAnUntrustedOne) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("certificate.pem");
  const auto openssl = [](const QStringList& arguments) {
    QProcess process;
    process.start("openssl", arguments);
    const bool isMade = process.waitForFinished() && process.exitCode() == 0;
    return isMade ? process.readAllStandardOutput() : QByteArray();
  };
  const QStringList anew{"req",    "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1",
                         "-nodes", "-keyout"};
  openssl(anew + QStringList{file, "-x509", "-out", file + ".authority", "-subj", "/CN=authority"});
  openssl(anew + QStringList{file + ".key", "-out", file + ".request", "-subj", "/CN=old.example", "-addext",
                             "subjectAltName=DNS:old.example"});
  const QSslCertificate expired(
      openssl({"x509", "-req", "-in", file + ".request", "-CA", file + ".authority", "-CAkey", file,
               "-set_serial", "2", "-days", "-1", "-copy_extensions", "copyall"}));
  QFile key(file + ".key");
  if (expired.isNull() || !key.open(QIODevice::ReadOnly)) GTEST_SKIP() << "the openssl program is missing";
  QSslConfiguration tls;
  tls.setLocalCertificate(expired);
  tls.setPrivateKey(QSslKey(&key, QSsl::Ec));
  auto encrypted = std::make_unique<QSslServer>();
  encrypted->setSslConfiguration(tls);
  ASSERT_NO_FATAL_FAILURE(serve(std::move(encrypted)));
  ADHttpPeer peer{.address = "127.0.0.1", .port = server->serverPort()};
  EXPECT_EQ(ask("https://old.example", peer).failure, ADHttpFailure::CertificateUntrusted);
  peer.certificates = QSslCertificate::fromPath(file + ".authority");
  EXPECT_EQ(ask("https://old.example", peer).failure, ADHttpFailure::CertificateExpired);
  EXPECT_EQ(ask("https://new.example", peer).failure, ADHttpFailure::CertificateOfOtherName);
  EXPECT_TRUE(request.isEmpty());
}

}  // namespace
