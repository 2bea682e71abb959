#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <functional>

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/FrameLayout.h"
#include "platform/Spinner.h"
#include "platform/StaticText.h"
#include "tests/KZPreference/panes/meetings/PreferenceHost.h"

namespace {

using Variant = PreferenceHost::Variant;

const QString kEmail = QStringLiteral("ann@brenn.example");
const QString kDetect = QStringLiteral(R"(15 {"QRT_ExchangeDiscover_Email":"ann@brenn.example"})");

QString credentialText(const QString& content) {
  return QStringLiteral(
             R"(27 {"QRT_CredentialContent":"%1","QRT_CredentialType":"QRT_CredentialTypeUsernamePassword"})")
      .arg(content);
}

QString busyPlace() {
  const auto& spinner = PreferenceHost::control<Spinner>("m_spinner");
  if (spinner.isHidden()) return spinner.isAnimating() ? QStringLiteral("lost") : QStringLiteral("idle");
  const auto isBeside = [&spinner](const char* name, double gap) {
    const Frame beside = frameOf(&PreferenceHost::control(name));
    const Frame place = frameOf(&spinner);
    return place.x == beside.maxX() + gap && place.y == beside.y + (beside.height - place.height) / 2;
  };
  if (isBeside("m_emailInputTxt", 10)) return QStringLiteral("detecting");
  return isBeside("m_applyBtn", 2) ? QStringLiteral("applying") : QStringLiteral("astray");
}

// The group's state in one line, such as `idle d--- blue Applied successfully`. The letters are the detect
// button, user name, password and apply button: lower case for enabled, upper case for disabled, "-" for
// hidden.
QString shows() {
  QString line = busyPlace() + u' ' + (PreferenceHost::control("m_detectBtn").isEnabled() ? u'd' : u'D');
  for (const auto& [name, letter] :
       {std::pair("m_usernameInputTxt", 'u'), {"m_passwordInputTxt", 'p'}, {"m_applyBtn", 'a'}}) {
    const QWidget& control = PreferenceHost::control(name);
    const QChar sign = QLatin1Char(letter);
    line += control.isHidden() ? QChar(u'-') : control.isEnabled() ? sign : sign.toUpper();
  }
  const auto& message = PreferenceHost::control<StaticText>("m_messageTxt");
  if (message.isHidden()) return line;
  return line + QLatin1String(message.systemColor() == SystemColor::Blue ? " blue " : " red ") +
         message.text();
}

class ExchangeFlow : public testing::TestWithParam<Variant> {
 protected:
  ExchangeFlow() {
    host.openMeetings(GetParam());
    host.takeSent();
  }

  void detect() {
    host.type("m_emailInputTxt", kEmail);
    host.click("m_detectBtn");
  }
  void wantCredential() {
    detect();
    host.needCredential();
  }
  void apply() {
    wantCredential();
    host.type("m_usernameInputTxt", QStringLiteral("BRENN\\ann"));
    host.type("m_passwordInputTxt", QStringLiteral("pw"));
    host.click("m_applyBtn");
  }
  static void refuse() { PreferenceHost::challenge(1, QStringLiteral("true")); }

  PreferenceHost host;
};

struct Transition {
  const char* from;
  const char* event;
  QString shows;
  QStringList sent;
};

TEST_P(ExchangeFlow, EveryTransitionShowsAndSendsWhatItShould) {
  const QString failed = QStringLiteral("No service there");
  const QString rejected = QStringLiteral("idle d--- red Invalid email or password");
  const QString succeeded = QStringLiteral("idle d--- blue Applied successfully");
  const std::map<std::string, std::function<void()>> states{
      {"idle", [] {}},
      {"detecting", [this] { detect(); }},
      {"credential wanted", [this] { wantCredential(); }},
      {"applying", [this] { apply(); }},
      {"failed", [&] { detect(), host.fail(failed); }},
      {"rejected", [this] { apply(), refuse(); }},
      {"succeeded", [this] { apply(), host.resolveWith(kEmail); }},
  };
  const std::map<std::string, std::function<void()>> events{
      {"detect", [this] { host.click("m_detectBtn"); }},
      {"valid email", [this] { host.type("m_emailInputTxt", kEmail); }},
      {"Return in email", [this] { host.press("m_emailInputTxt", Qt::Key_Return); }},
      {"two at signs and Return",
       [this] {
         host.type("m_emailInputTxt", QStringLiteral("ann@@brenn.example"));
         host.press("m_emailInputTxt", Qt::Key_Return);
       }},
      {"no email and Return",
       [this] {
         host.type("m_emailInputTxt", {});
         host.press("m_emailInputTxt", Qt::Key_Return);
       }},
      {"credential", [this] { host.needCredential(); }},
      {"credential and user name",
       [this] {
         host.needCredential();
         host.type("m_usernameInputTxt", QStringLiteral("ann"));
       }},
      {"apply", [this] { host.click("m_applyBtn"); }},
      {"Return in user name", [this] { host.press("m_usernameInputTxt", Qt::Key_Return); }},
      {"user name", [this] { host.type("m_usernameInputTxt", QStringLiteral("ann")); }},
      {"password, no user name",
       [this] {
         host.type("m_usernameInputTxt", QStringLiteral("ann"));
         host.type("m_passwordInputTxt", QStringLiteral("a:b"));
         host.type("m_usernameInputTxt", {});
         host.click("m_applyBtn");
       }},
      {"both and Return",
       [this] {
         host.type("m_usernameInputTxt", QStringLiteral("a:nn"));
         host.type("m_passwordInputTxt", QStringLiteral("a:b"));
         host.press("m_passwordInputTxt", Qt::Key_Return);
       }},
      {"failure", [&] { host.fail(failed); }},
      {"failure without text",
       [this] {
         host.resolve({{kKZResult, kKZFail}});
       }},
      {"success", [this] { host.resolveWith(kEmail); }},
      {"refusal", [] { refuse(); }},
  };
  const QString idle = QStringLiteral("idle D---");
  const Transition transitions[] = {
      {"idle", "detect", idle, {}},
      {"idle", "valid email", "idle d---", {}},
      {"idle", "two at signs and Return", "idle D--- red Invalid email address", {}},
      {"idle", "no email and Return", "idle D--- red Invalid email address", {}},
      {"detecting", "detect", "detecting d---", {kDetect}},
      {"detecting", "Return in email", "detecting d---", {kDetect}},
      {"detecting", "credential", "idle duPA", {}},
      {"detecting", "failure", "idle d--- red " + failed, {}},
      {"detecting", "failure without text", "idle d---", {}},
      // No credential was typed, so the account does not count as applied.
      {"detecting", "success", "idle D--- blue Applied successfully", {kSourceChanged}},
      {"credential wanted", "apply", "idle duPA", {}},
      {"credential wanted", "Return in user name", "idle duPA", {}},
      {"credential wanted", "user name", "idle dupA", {}},
      {"credential wanted", "password, no user name", "idle duPa", {}},
      {"credential wanted", "both and Return", "applying dupa", {credentialText("a:nn:a:b")}},
      {"credential wanted", "detect", "detecting duPA", {kDetect}},
      {"applying", "success", succeeded, {kSourceChanged}},
      {"applying", "failure", "idle d--- red " + failed, {}},
      {"applying", "refusal", rejected, {}},
      {"applying", "credential and user name", "idle dupA", {}},  // the password is gone
      {"failed", "detect", "detecting d---", {kDetect}},
      {"failed", "failure without text", "idle d--- red " + failed, {}},
      {"failed", "valid email", "idle d---", {}},
      {"rejected", "detect", "detecting d---", {kDetect}},
      {"succeeded", "detect", "detecting d---", {kDetect}},
      {"succeeded", "failure without text", succeeded, {}},
      {"succeeded", "refusal", rejected, {}},
  };
  for (const Transition& transition : transitions) {
    SCOPED_TRACE(std::string(transition.from) + " + " + transition.event);
    KZPlistFileHandle::sharedInstance().close();
    KZKeyChainHandle::sharedInstance().useStorage(KZKeyChainHandle::Storage::Memory);
    host.command(KZCommand::KZCmdDestroyPreference);
    host.openMeetings(GetParam());
    states.at(transition.from)();
    host.takeSent();
    events.at(transition.event)();
    EXPECT_EQ(shows().toStdString(), transition.shows.toStdString());
    EXPECT_EQ(host.takeSent(), transition.sent);
  }
}

TEST_P(ExchangeFlow, EnablingFollowsWhatIsTyped) {
  wantCredential();
  const struct {
    const char* field;
    QString text;
    QString shows;
  } steps[] = {
      {"m_usernameInputTxt", "u", "idle dupA"},  {"m_passwordInputTxt", "p", "idle dupa"},
      {"m_emailInputTxt", "a@b@c", "idle DupA"}, {"m_usernameInputTxt", "", "idle DupA"},
      {"m_usernameInputTxt", "u", "idle DupA"},  {"m_emailInputTxt", "a@", "idle DupA"},
      {"m_emailInputTxt", "a @ b", "idle dupa"}, {"m_usernameInputTxt", "", "idle duPa"},
      {"m_emailInputTxt", "@b", "idle DuPA"},    {"m_usernameInputTxt", "u", "idle DuPA"},
      {"m_emailInputTxt", "a@b", "idle dupa"},   {"m_passwordInputTxt", "", "idle dupA"},
  };
  for (const auto& step : steps) {
    host.type(step.field, step.text);
    EXPECT_EQ(shows().toStdString(), step.shows.toStdString()) << step.field << " " << qPrintable(step.text);
  }
}

// Without a credential step the fields are empty, and empty texts are stored.
TEST_P(ExchangeFlow, SuccessWithoutAUserNameStoresEmptyTexts) {
  detect();
  host.resolveWith(kEmail);
  QString username;
  QString password;
  KZKeyChainHandle::sharedInstance().getOutlookUsername(&username, &password);
  EXPECT_TRUE(!username.isNull() && username.isEmpty());
  EXPECT_TRUE(!password.isNull() && password.isEmpty());
}

TEST_P(ExchangeFlow, ClosingInMidFlightAfterAnAccountWasAppliedCancelsThatOne) {
  apply();
  host.resolveWith(kEmail);
  host.type("m_emailInputTxt", QStringLiteral("bob@brenn.example"));
  host.click("m_detectBtn");
  host.takeSent();
  PreferenceHost::window()->close();
  EXPECT_EQ(host.takeSent(), QStringList{QStringLiteral("16") + kDetect.mid(2)});
}

TEST_P(ExchangeFlow, AnAppliedAccountIsShownUnlessItsCredentialIsMarkedInvalid) {
  const struct {
    QVariant mark;
    QString shows;
  } cases[] = {{QVariant(), "idle d--- blue Applied successfully"},
               {true, "idle d--- blue Applied successfully"},
               {false, "idle d--- red Invalid email or password"},
               {QStringLiteral("no"), "idle d--- blue Applied successfully"}};
  for (const auto& tried : cases) {
    Dictionary exchange{{kKZCalendarIntegrationExchangeInternalUrl, QStringLiteral("https://in.example")},
                        {kKZCalendarIntegrationExchangeEmail, kEmail}};
    if (tried.mark.isValid()) exchange.insert(kKZCalendarIntegrationOnpremiseCredValid, tried.mark);
    KZPlistFileHandle::sharedInstance().setCalendarIntegration(
        {{kKZCalendarIntegrationExchange, exchange},
         {kKZCalendarIntegrationSource, kKZCalendarIntegrationSourceOutlook}});
    KZKeyChainHandle::sharedInstance().commitOutlookUsername(QStringLiteral("ann"), QStringLiteral("pw"));
    host.command(KZCommand::KZCmdDestroyPreference);
    host.openMeetings(GetParam());
    EXPECT_EQ(shows().toStdString(), tried.shows.toStdString());
    EXPECT_EQ(PreferenceHost::control<QLineEdit>("m_emailInputTxt").text(), kEmail);
    // The line and the user name field are in the same place.
    const auto& username = PreferenceHost::control<QLineEdit>("m_usernameInputTxt");
    const auto upper = [&] {
      return username.parentWidget()->childAt(username.geometry().center())->objectName();
    };
    host.needCredential();
    EXPECT_EQ(upper(), "m_usernameInputTxt");
    host.fail(QStringLiteral("No service there"));
    host.needCredential();
    host.type("m_emailInputTxt", {});
    host.press("m_emailInputTxt", Qt::Key_Return);
    EXPECT_EQ(upper(), "m_messageTxt");
  }
}

TEST_P(ExchangeFlow, MalformedResultsChangeNothing) {
  const Dictionary results[] = {
      {},
      {{kKZResult, 1}},
      {{kKZResult, kKZFail}, {kKZErrorHandleData, QStringLiteral("text")}},
      {{kKZResult, kKZFail}, {kKZErrorHandleData, Dictionary{{kKZErrorMessage, 7}}}},
      {{kKZResult, kKZFail}, {kKZErrorHandleData, Dictionary{{kKZErrorMessage, QString()}}}},
  };
  for (const Dictionary& result : results) {
    detect();
    host.resolve(result);
    EXPECT_EQ(shows(), "idle d---");
  }
  host.takeSent();
  host.resolve({{kKZResult, kKZSuccess}, {QRT_ExchangeDiscover_Exchange, QVariantList{1}}});
  EXPECT_EQ(host.takeSent(), QStringList{kSourceChanged});
  host.command(KZCommand::KZCmdDestroyPreference);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  host.takeSent();
  host.resolveWith(kEmail);
  host.needCredential();
  refuse();
  EXPECT_EQ(host.takeSent(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(BothVariants, ExchangeFlow, testing::Values(Variant::SignedIn, Variant::Guest),
                         [](const auto& tried) {
                           return tried.param == Variant::Guest ? "Guest" : "SignedIn";
                         });

}  // namespace
