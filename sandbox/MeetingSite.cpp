#include "sandbox/MeetingSite.h"

#include <algorithm>

#include "sandbox/Answers.h"

namespace sandbox {

namespace {

const QString siteFile = QStringLiteral("/companion/site.json");
const QString updatesFile = QStringLiteral("/companion/updates.json");
const QString settingsPath = QStringLiteral("/settings");
const QString joinPath = QStringLiteral("/join");

constexpr std::chrono::seconds slowTime{1};
constexpr std::chrono::seconds slowPackageTime{3};

HttpResponse settingsPage() {
  return pageAnswer(
      QStringLiteral("Meeting settings"),
      QStringLiteral("<h1>Meeting settings</h1><p>This is the sandbox. Your meeting service would "
                     "show the settings of your meetings here.</p>"));
}

HttpResponse joinPage() {
  return pageAnswer(
      QStringLiteral("Join by number"),
      QStringLiteral("<h1>Join by number</h1><p>This is the sandbox. Your meeting service would "
                     "ask for the number of a meeting here.</p>"));
}

}  // namespace

MeetingSite::MeetingSite()
    : m_newer(makeUpdatePackage(QStringLiteral("9.1.0"))),
      m_same(makeUpdatePackage(QStringLiteral(KZ_SANDBOX_VERSION))) {}

bool MeetingSite::listen() {
  if (!m_servers.listen(siteHosts())) return false;
  for (HttpServer* const server : {&m_servers.encrypted(), &m_servers.otherName()}) {
    server->handleOthers([this](const HttpRequest& request) { return answer(request); });
  }
  m_servers.plain().handle(settingsPath, [](const HttpRequest& /*request*/) { return settingsPage(); });
  m_servers.plain().handle(joinPath, [](const HttpRequest& /*request*/) { return joinPage(); });
  return true;
}

QJsonObject MeetingSite::describe() const {
  const auto sites = sitesToTry();
  const auto other = std::find_if(sites.begin(), sites.end(),
                                  [](const SiteToTry& one) { return one.what == SiteCase::OtherName; });
  return {{"domain", "sandbox.example"},
          {"host", "127.0.0.1"},
          {"http", m_servers.plainPort()},
          {"https", m_servers.encryptedPort()},
          {"otherName", QJsonObject{{"site", other->site}, {"https", m_servers.otherNamePort()}}},
          {"certificates", m_servers.certificates()},
          {"sites", describeSites()}};
}

HttpResponse MeetingSite::answer(const HttpRequest& request) const {
  const SiteToTry* const site = siteOfHost(request.host());
  if (site == nullptr) return notHere();
  switch (site->what) {
    case SiteCase::Slow: {
      HttpResponse response = answerWell(site->what, request);
      response.delay = slowTime;
      return response;
    }
    case SiteCase::Silent:
      return delivered({}, HttpResponse::Delivery::Silent);
    case SiteCase::ServerError:
      return {.status = 500};
    case SiteCase::Loop:
      return leadRound(request);
    case SiteCase::Garbage:
      return pageAnswer(QStringLiteral("Welcome"), QStringLiteral("<p>Welcome to our web site<br>"));
    case SiteCase::Works:
    case SiteCase::Current:
    case SiteCase::OtherName:
    case SiteCase::Huge:
    case SiteCase::Damaged:
      return answerWell(site->what, request);
  }
  return notHere();
}

HttpResponse MeetingSite::answerWell(SiteCase what, const HttpRequest& request) const {
  if (request.path == siteFile) return siteOf(what);
  if (request.path == updatesFile) return updatesOf(what);
  if (request.path == updateOf(what).path) return packageOf(what);
  return notHere();
}

HttpResponse MeetingSite::siteOf(SiteCase what) const {
  const QString pages = m_servers.plainUrl().toString();
  QJsonObject site{
      {"name", "Sandbox Meetings"},
      {"outlook", true},
      {"links", QJsonObject{{"meetingSettings", pages + settingsPath}, {"joinByNumber", pages + joinPath}}},
      {"preference", QJsonObject{{"pmrUrl", "https://sandbox.example/meet/ada"},
                                 {"pmrSipUrl", "ada@sandbox.example"},
                                 {"disableCalendarIntegration", true},
                                 {"enableListGoogleCalendarMeeting", true}}}};
  if (what == SiteCase::Works) site.insert("downloads", "https://" + downloadsHost());
  return jsonAnswer(site);
}

HttpResponse MeetingSite::updatesOf(SiteCase what) const {
  const UpdatePackage& update = updateOf(what);
  return jsonAnswer({{"version", update.version},
                     {"package", update.path},
                     {"bytes", update.bytes.size()},
                     {"sha256", QString::fromLatin1(update.sha256)},
                     {"notes", "Made up by the sandbox. It changes nothing."}});
}

HttpResponse MeetingSite::packageOf(SiteCase what) const {
  if (what == SiteCase::Huge) return floodAnswer();
  HttpResponse response{.contentType = "application/octet-stream", .body = updateOf(what).bytes};
  if (what == SiteCase::Damaged) response.body.front() = '?';
  if (what == SiteCase::Slow) {
    response.delivery = HttpResponse::Delivery::Paced;
    response.pace = slowPackageTime;
  }
  return response;
}

const UpdatePackage& MeetingSite::updateOf(SiteCase what) const {
  return what == SiteCase::Current ? m_same : m_newer;
}

}  // namespace sandbox
