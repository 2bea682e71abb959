#include "companion/app/WalkThrough.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QRegularExpression>

namespace {

// In the texts, what stands in square brackets is to be copied, in braces a site to use.
struct WalkThroughStep {
  const char* title;
  const char* text;
};

constexpr WalkThroughStep kSteps[] = {
    {"An Exchange account",
     "In Preferences open Meetings and choose Microsoft Outlook. Type [onprem@corp.sandbox.example] and "
     "press "
     "Return. Enter the user name [CORP\\onprem] and the password [correct horse], and press Apply."},
    {"Your next meetings", "The page Meetings of this window now lists what the account holds."},
    {"A wrong password",
     "Type the address again, but another password: Preferences asks for it again. The third wrong one locks "
     "the "
     "account until you start this application again."},
    {"An Office 365 account",
     "Type [online@cloud.sandbox.example] and press Return. Your browser opens: press Sign in there, or "
     "Refuse to see what happens then."},
    {"A server elsewhere",
     "Type [hosted@hosted.sandbox.example] and press Return. You are asked whether its server may be used."},
    {"A server in trouble",
     "Type [silent@silent.sandbox.example] and press Return. It never answers: after some seconds "
     "Preferences "
     "tells you. The accounts below have more troubles."},
    {"An update",
     "Use {meetings.sandbox.example} and press Check for updates above: version 9.1.0 is there."},
    {"An update in trouble",
     "Use {slow.meetings.sandbox.example} to see an update arrive slowly and to cancel it, or "
     "{damaged.meetings.sandbox.example} for one that must not be installed."},
    {"Your meeting service",
     "Use {meetings.sandbox.example} and press Join by number above, or Edit in Meetings: your browser shows "
     "the page."},
    {"A guest", "Choose Guest above: Preferences shows what a guest may set."},
};

constexpr char kCopyLink[] = "copy:";
constexpr char kSiteLink[] = "site:";

QString withLinks(const QString& text) {
  static const QRegularExpression copies(QStringLiteral("\\[([^\\]]+)\\]"));
  static const QRegularExpression sites(QStringLiteral("\\{([^}]+)\\}"));
  const QString link = QStringLiteral("<a href=\"%1\\1\">\\1</a>");
  return text.toHtmlEscaped().replace(copies, link.arg(kCopyLink)).replace(sites, link.arg(kSiteLink));
}

}  // namespace

WalkThrough::WalkThrough() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(8);
  grid->setColumnStretch(1, 1);
  for (const WalkThroughStep& step : kSteps) {
    addStep(grid, QString::fromLatin1(step.title), QString::fromLatin1(step.text));
  }
}

void WalkThrough::addStep(QGridLayout* grid, const QString& title, const QString& text) {
  const int row = grid->rowCount();
  auto* number = new QLabel(QStringLiteral("%1.").arg(row));
  auto* words = new QLabel(QStringLiteral("<b>%1.</b> %2").arg(title.toHtmlEscaped(), withLinks(text)));
  words->setTextFormat(Qt::RichText);
  words->setWordWrap(true);
  words->setTextInteractionFlags(Qt::TextBrowserInteraction);
  connect(words, &QLabel::linkActivated, this, &WalkThrough::follow);
  grid->addWidget(number, row, 0, Qt::AlignRight | Qt::AlignTop);
  grid->addWidget(words, row, 1);
}

void WalkThrough::follow(const QString& link) {
  const QString text = link.section(QLatin1Char(':'), 1);
  if (link.startsWith(QLatin1String(kSiteLink))) return Q_EMIT siteChosen(text);
  QGuiApplication::clipboard()->setText(text);
  Q_EMIT copied(text);
}
