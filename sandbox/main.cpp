#include <unistd.h>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>
#include <array>
#include <cstdio>

#include "sandbox/ExchangeService.h"
#include "sandbox/HttpServer.h"
#include "sandbox/MeetingSite.h"
#include "sandbox/OnlineAuthorities.h"

// Runs the sandbox until it is ended. The first line on standard output says where it is.
int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "A small meeting service, update service, Exchange and sign-in authority on the loopback address, for "
      "trying things out.");
  parser.addHelpOption();
  parser.addOptions({{"port", "Listen at this port (default: a free one).", "number", "0"},
                     {"lifetime", "How long an access token is good, in seconds.", "seconds", "3600"},
                     {"scopes", "Take scopes in place of a resource."},
                     {"give", "Sign everybody in without asking."},
                     {"until-input-ends", "End when standard input does, for a parent that may die."}});
  parser.process(application);

  sandbox::HttpServer server;
  if (!server.listen(parser.value("port").toUShort())) {
    std::fputs("The port cannot be opened.\n", stderr);
    return 1;
  }
  using sandbox::Authority;
  const sandbox::OnlineAuthorities authorities(
      server,
      {.consent = parser.isSet("give") ? Authority::Consent::Give : Authority::Consent::AskUser,
       .generation = parser.isSet("scopes") ? Authority::Generation::Scope : Authority::Generation::Resource,
       .lifetime = parser.value("lifetime").toInt()});
  sandbox::ExchangeService exchange(
      server.url().toString(), [&authorities](const QString& token) { return authorities.isGranted(token); });
  sandbox::MeetingSite site;
  QJsonObject where{{"authority", authorities.faultless().address()}};
  if (exchange.listen() && site.listen()) {
    where.insert("exchange", exchange.describe());
    where.insert("site", site.describe());
  } else {
    std::fputs("No Exchange and no meeting site is played: the openssl program made no certificates.\n",
               stderr);
  }
  std::printf("%s\n", QJsonDocument(where).toJson(QJsonDocument::Compact).constData());
  std::fflush(stdout);

  QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
  input.setEnabled(parser.isSet("until-input-ends"));
  QObject::connect(&input, &QSocketNotifier::activated, &application, [] {
    std::array<char, 256> ignored{};
    if (::read(STDIN_FILENO, ignored.data(), ignored.size()) <= 0) QCoreApplication::quit();
  });
  return QCoreApplication::exec();
}
