#include <unistd.h>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>
#include <array>
#include <cstdio>

#include "sandbox/Cases.h"
#include "sandbox/OnlineServices.h"
#include "sandbox/Sandbox.h"

namespace {

void print(const QJsonObject& object, QJsonDocument::JsonFormat format) {
  std::printf("%s\n", QJsonDocument(object).toJson(format).trimmed().constData());
  std::fflush(stdout);
}

}  // namespace

// Runs the sandbox until it is terminated. The first line on standard output describes it.
int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "A small meeting service, Exchange and sign-in authority on the loopback address, for trying things "
      "out.");
  parser.addHelpOption();
  parser.addOptions({{"port", "Listen at this port (default: a free one).", "number", "0"},
                     {"lifetime", "How long an access token is valid, in seconds.", "seconds", "3600"},
                     {"scopes", "Expect scopes instead of a resource."},
                     {"give", "Sign every user in without asking."},
                     {"until-input-ends", "Exit when standard input ends, even when the parent was killed."},
                     {"describe", "Print the accounts and sites to try, and exit."}});
  parser.process(application);
  if (parser.isSet("describe")) {
    print(sandbox::describeCases(), QJsonDocument::Indented);
    return 0;
  }

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
  sandbox::Sandbox played(server.url().toString(),
                          [&authorities](const QString& token) { return authorities.isGranted(token); });
  const bool isPlayed = played.listen();
  if (!isPlayed) {
    std::fputs("Only the authority is played: the openssl program made no certificates.\n", stderr);
  }
  QJsonObject description = isPlayed ? played.describe() : QJsonObject();
  description.insert("authority", authorities.faultless().address());
  print(description, QJsonDocument::Compact);

  QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
  input.setEnabled(parser.isSet("until-input-ends"));
  QObject::connect(&input, &QSocketNotifier::activated, &application, [] {
    std::array<char, 256> ignored{};
    if (::read(STDIN_FILENO, ignored.data(), ignored.size()) <= 0) QCoreApplication::quit();
  });
  return QCoreApplication::exec();
}
