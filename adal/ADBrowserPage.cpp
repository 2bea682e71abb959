#include "adal/ADBrowserPage.h"

#include <QCryptographicHash>
#include <QStringList>

#include "adal/ADAuthenticationSettings.h"

namespace {

constexpr char pageStyle[] = R"(
:root { color-scheme: light dark; --ground: #f2f3f5; --card: #fff; --text: #1d1d1f; --good: #1a7f37;
  --bad: #c4281c; --waiting: #5b6470; --edge: #d9dce1; }
@media (prefers-color-scheme: dark) { :root { --ground: #1b1c1e; --card: #27282b; --text: #f1f1f3;
  --good: #56d364; --bad: #ff7b72; --waiting: #a5adb8; --edge: #3b3d42; } }
body { margin: 0; min-height: 100vh; display: grid; place-items: center; background: var(--ground);
  color: var(--text); font: 1rem/1.5 system-ui, sans-serif; }
main { box-sizing: border-box; width: min(28rem, calc(100% - 2rem)); margin: 1rem; padding: 2.5rem 2rem;
  background: var(--card); border: 1px solid var(--edge); border-radius: 12px; text-align: center; }
svg { width: 4rem; height: 4rem; fill: none; stroke: currentColor; stroke-width: 3; stroke-linecap: round;
  stroke-linejoin: round; }
.good { color: var(--good); } .bad { color: var(--bad); } .waiting { color: var(--waiting); }
h1 { margin: 1rem 0 .5rem; font-size: 1.5rem; line-height: 1.25; text-wrap: balance; }
p { margin: .25rem 0 0; text-wrap: balance; }
)";

struct PageContent {
  const char* mark;  // its style class
  const char* drawing;
  QString title;
  QStringList sentences;
};

PageContent contentOf(ADBrowserPage page) {
  static constexpr char tick[] = "M15 25l6 6 12-13";
  static constexpr char cross[] = "M17 17l14 14M31 17l-14 14";
  static constexpr char dots[] = "M16 24h.01M24 24h.01M32 24h.01";
  const auto text = [](const char* english) {
    return ADAuthenticationSettings::sharedInstance().text(english);
  };
  const QString again = text("To try again, go back to Preferences.");
  const QString close = text("You can close this page.");
  switch (page) {
    case ADBrowserPage::SignedIn:
      return {"good", tick, text("You are signed in"), {close}};
    case ADBrowserPage::Refused:
      return {"bad", cross, text("Sign-in was refused"), {again, close}};
    case ADBrowserPage::Failed:
      return {"bad", cross, text("Sign-in did not work"), {again, close}};
    case ADBrowserPage::NotExpected:
      return {"bad", cross, text("Sign-in did not work"), {text("This is not the expected answer."), again}};
    case ADBrowserPage::Pending:
      break;
  }
  return {"waiting",
          dots,
          text("Sign-in is not finished yet"),
          {text("Preferences shows whether it worked."), close}};
}

}  // namespace

QByteArray browserPageHtml(ADBrowserPage page) {
  const PageContent content = contentOf(page);
  QString language = ADAuthenticationSettings::sharedInstance().textLanguage();
  QString html =
      QStringLiteral(
          "<!DOCTYPE html><html lang=\"%1\"><head><meta charset=\"utf-8\">"
          "<meta name=\"viewport\" content=\"width=device-width\"><title>%2</title><style>%3</style>"
          "</head><body><main><svg class=\"%4\" viewBox=\"0 0 48 48\" aria-hidden=\"true\">"
          "<circle cx=\"24\" cy=\"24\" r=\"21\"/><path d=\"%5\"/></svg><h1>%2</h1>")
          .arg(language.replace(QLatin1Char('_'), QLatin1Char('-')).toHtmlEscaped(),
               content.title.toHtmlEscaped(), QLatin1String(pageStyle), QLatin1String(content.mark),
               QLatin1String(content.drawing));
  for (const QString& sentence : content.sentences) html += "<p>" + sentence.toHtmlEscaped() + "</p>";
  return (html + "</main></body></html>\n").toUtf8();
}

QByteArray browserPagePolicy() {
  const QByteArray hash =
      QCryptographicHash::hash(QByteArray(pageStyle), QCryptographicHash::Sha256).toBase64();
  return "default-src 'none'; style-src 'sha256-" + hash +
         "'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'";
}
