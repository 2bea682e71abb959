#include "sandbox/SiteResponses.h"

#include <QJsonObject>

#include "sandbox/Responses.h"

namespace sandbox {

namespace {

struct Page {
  const char* path;
  const char* title;
  const char* text;
};

constexpr Page meetingSettings{"/settings", "Meeting settings",
                               "Your meeting service would show the settings of your meetings here."};
constexpr Page joinByNumber{"/join", "Join by number",
                            "Your meeting service would ask for the number of a meeting here."};
constexpr Page download{"/download", "Version 9.1.0",
                        "Your meeting service would offer the new version for download here."};

QString addressOf(const Page& page, const QUrl& pages) {
  return pages.toString() + QLatin1String(page.path);
}

HttpResponse siteDescription(Case what, const QUrl& pages) {
  QJsonObject site{{"name", "Sandbox Meetings"},
                   {"outlook", true},
                   {"links", QJsonObject{{"meetingSettings", addressOf(meetingSettings, pages)},
                                         {"joinByNumber", addressOf(joinByNumber, pages)}}},
                   {"preference", QJsonObject{{"pmrUrl", "https://sandbox.example/meet/ada"},
                                              {"pmrSipUrl", "ada@sandbox.example"},
                                              {"disableCalendarIntegration", true},
                                              {"enableListGoogleCalendarMeeting", true}}}};
  if (what == Case::Newer) site.insert("downloads", "https://" + downloadsHost());
  return jsonResponse(site);
}

}  // namespace

HttpResponse siteResponse(Case what, const QString& path, const QUrl& pages) {
  if (path == QLatin1String("/companion/site.json")) return siteDescription(what, pages);
  if (path != QLatin1String("/companion/updates.json")) return notFound();
  if (what == Case::Current) return jsonResponse({{"version", KZ_SANDBOX_VERSION}});
  return jsonResponse({{"version", "9.1.0"}, {"page", addressOf(download, pages)}});
}

HttpResponse sitePage(const QString& path) {
  for (const Page& page : {meetingSettings, joinByNumber, download}) {
    if (path != QLatin1String(page.path)) continue;
    const QString title = QString::fromLatin1(page.title);
    return pageResponse(
        title,
        QStringLiteral("<h1>%1</h1><p>This is the sandbox. %2</p>").arg(title, QLatin1String(page.text)));
  }
  return notFound();
}

}  // namespace sandbox
