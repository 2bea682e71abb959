#include <gtest/gtest.h>

#include <QImage>
#include <QJsonArray>
#include <QTemporaryDir>

#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/kit/SessionRun.h"

namespace {

const QString kShow = QStringLiteral(R"({"command": 2})");
const QString kShown = QStringLiteral(R"({"echo":"shown"})");

SessionRun play(const QStringList& script, const QStringList& options = {}) {
  return runSessionWith(FAKE_PLUGIN, script, options);
}

QString happened(const char* content) {
  return QStringLiteral(R"({"sent":23,"name":"KZCmdWriteTelemetry","content":%1})")
      .arg(QString::fromUtf8(content));
}

std::string textOf(const QStringList& lines) {
  return lines.join(u'\n').toStdString();
}

struct Case {
  const char* what;
  QStringList script;
  QStringList expected;
  QStringList options = {};
};

TEST(Session, PrintsWhatHappensInOrder) {
  const Case cases[] = {
      {"what the host does",
       {
           R"({"echo": {"mark": [1, 0.5]}})",
           R"({"command": 77, "content": {"n": 3, "f": true, "gone": null, "bytes": {"$data": "AP8="}}})",
           R"({"command": 77})",
           R"({"command": 20, "content": {"kproximityCommand": "@kstartDetectVD"}})",
           R"({"command": 20, "content": {"kproximityCommand": "kstartDetectVD"}})",
           R"({"notify": 7, "content": {}})",
           R"({"notify": 8})",
           R"({"command": 28})",
           R"({"command": 8})",
           R"({"command": 10})",
           R"({"post": "HTTPAuthenticationRequired", "userInfo": {"a": 1}, "thread": "worker"})",
           R"({"post": "HTTPAuthenticationRequired"})",
           R"({"post": "HTTPAuthenticationDatasource"})",
           R"({"command": 9, "content": {"password": "secret"}})",
           R"({"echo": null})",
       },
       {
           R"({"echo":{"mark":[1,0.5]}})",
           R"({"sent":77,"name":"","content":{"bytes":{"$data":"AP8="},"f":true,"n":3}})",
           R"({"sent":77,"name":"","content":null})",
           R"({"sent":19,"name":"KZCmdSetVideoDevicePrefs","content":{"same":true}})",
           R"({"sent":19,"name":"KZCmdSetVideoDevicePrefs","content":{"same":false}})",
           R"({"sent":13,"name":"KZCmdPreferenceChanged","content":{"hasContent":true,"index":7}})",
           R"({"sent":13,"name":"KZCmdPreferenceChanged","content":{"hasContent":false,"index":8}})",
           R"({"sent":29,"name":"KZCmdExchOnlineTokenGot","content":null})",
           R"({"warning":{"message":"Message","title":"Title"}})",
           R"({"opened":"https://example.com/a%20b"})",
           R"({"posted":"HTTPAuthenticationDatasource","userInfo":{"a":1,"answered":true}})",
           R"({"posted":"HTTPAuthenticationDatasource","userInfo":{"answered":true}})",
           R"({"echo":null})",
       }},
      {"trace",
       {R"({"command": 9, "content": {"password": "secret"}})"},
       {R"({"trace":"warning","method":"FakeCore::handle","text":"content:{\"password\":\"***\"}"})"},
       {"--trace"}},
      {"writes, without their secrets",
       {
           R"({"set": "store", "values": {"siteName": "one"}})",
           R"({"set": "store", "values": {"siteName": "one"}})",
           R"({"set": "store", "values": {"siteName": null}})",
           R"({"set": "keychain", "username": "ann", "password": "p:w"})",
           R"({"set": "keychain", "username": null, "password": null})",
       },
       {
           R"({"stored":"siteName","value":"one","before":null})",
           R"({"stored":"siteName","value":null,"before":"one"})",
           R"-({"kept":"OutlookAccount(Onpremise)"})-",
           R"-({"removed":"OutlookAccount(Onpremise)"})-",
       },
       {"--writes"}},
      {"what the host owns",
       {
           R"({"set": "store", "values": {"siteName": "s", "launchAtLogin": false, "videoDevice": {"a": 1}, "userName": "u"}})",
           R"({"set": "store", "values": {"userName": null}})",
           R"({"get": "store"})",
           R"({"get": "keychain"})",
           R"({"set": "keychain", "username": "u", "password": "p"})",
           R"({"get": "keychain"})",
           R"({"set": "keychain", "username": null, "password": null})",
           R"({"get": "keychain"})",
           R"({"set": "host", "checkForUpdatesInProgress": true, "siteEnableOutlook": false, "joinByNumberLink": "x:"})",
           R"({"get": "host"})",
           R"({"set": "host", "joinByNumberLink": null, "checkForUpdatesInProgress": false})",
           R"({"get": "host"})",
           R"({"personalRoom": {"join": "j", "sip": "s"}})",
           R"({"personalRoom": {"join": ""}})",
           R"({"get": "personalRoom"})",
           R"({"get": "token", "email": "e"})",
           R"({"get": "token"})",
       },
       {
           R"({"result":{"launchAtLogin":false,"siteName":"s","videoDevice":{"a":1}}})",
           R"({"result":{"outlookOnlineData":null,"outlookPassword":null,"outlookUsername":null}})",
           R"({"result":{"outlookOnlineData":null,"outlookPassword":"p","outlookUsername":"u"}})",
           R"({"result":{"outlookOnlineData":null,"outlookPassword":null,"outlookUsername":null}})",
           R"({"result":{"checkForUpdatesInProgress":true,"joinByNumberLink":"x:","siteEnableOutlook":false}})",
           R"({"result":{"checkForUpdatesInProgress":false,"joinByNumberLink":null,"siteEnableOutlook":false}})",
           R"({"result":{"join":"","sip":"s"}})",
           R"({"result":{"email":"e","hasUsername":false}})",
           R"({"result":null})",
       }},
      {"comments, empty lines and ends of lines",
       {"# {", "", "  ", " {\"echo\": 1}\r", "#", R"({"echo": 2})"},
       {R"({"echo":1})", R"({"echo":2})"}},
  };
  for (const Case& given : cases) {
    const SessionRun run = play(given.script, given.options);
    EXPECT_EQ(textOf(run.lines), textOf(given.expected)) << given.what;
    EXPECT_EQ(run.complaints, "") << given.what;
    EXPECT_EQ(run.status, 0) << given.what;
  }
}

TEST(Session, UserActions) {
  const Case cases[] = {
      {"click",
       {R"({"click": "m_box"})"},
       {R"({"sent":4,"name":"KZCmdUpdateGeneralSetting","content":{"on":true,"shift":false}})"}},
      {"Shift shows only while it is held",
       {R"({"click": "m_box", "shift": true})", R"({"click": "m_box"})"},
       {R"({"sent":4,"name":"KZCmdUpdateGeneralSetting","content":{"on":true,"shift":true}})",
        R"({"sent":4,"name":"KZCmdUpdateGeneralSetting","content":{"on":false,"shift":false}})"}},
      {"typing replaces, key by key",
       {R"({"type": "m_field", "text": "a€😀"})", R"({"type": "m_field", "text": ""})",
        R"({"key": "Return", "in": "m_field"})"},
       {happened(R"({"typed":"a"})"), happened(R"({"typed":"a€"})"), happened(R"({"typed":"a€😀"})"),
        happened(R"({"typed":""})"), happened(R"({"returned":true})")}},
      {"pop-up",
       {R"({"choose": "m_popup", "item": "15"})"},
       {R"({"sent":19,"name":"KZCmdSetVideoDevicePrefs","content":{"title":"15"}})"}},
      {"hidden, disabled, covered",
       {R"({"click": "m_hidden"})", R"({"click": "m_off"})", R"({"click": "m_covered"})",
        R"({"key": "Space", "in": "m_off"})"},
       {R"({"refused":"m_hidden is hidden"})", R"({"refused":"m_off is disabled"})",
        R"({"refused":"m_covered is covered"})", R"({"refused":"m_off is disabled"})"}},
      {"scrolled into view", {R"({"click": "m_far"})"}, {happened(R"({"clicked":"far"})")}},
      {"same name in two groups", {R"({"click": "GroupB/m_same"})"}, {happened(R"({"clicked":"GroupB"})")}},
      {"parents by name, by class, or left out",
       {R"({"click": "m_generalView/GroupA/m_same"})", R"({"click": "FakePane/GroupB/m_same"})",
        R"({"click": "FakePane/m_far"})"},
       {happened(R"({"clicked":"GroupA"})"), happened(R"({"clicked":"GroupB"})"),
        happened(R"({"clicked":"far"})")}},
      {"panes by label and by English label",
       {R"({"pane": "Konto"})", R"({"pane": "Meetings", "shift": true})"},
       {happened(R"({"pane":"Konto","shift":false})"), happened(R"({"pane":"Treffen","shift":true})")}},
      {"keys to the window",
       {R"({"key": "w", "modifiers": ["command"]})", R"({"echo": 0})"},
       {happened(R"({"key":87,"modifiers":67108864})"), R"({"echo":0})"}},
      {"close and show again",
       {R"({"close": true})", R"({"close": true})", R"({"click": "m_box"})"},
       {happened(R"({"closing":true})"), R"({"refused":"no window is open"})",
        R"({"refused":"m_box is hidden"})"}},
      {"key window",
       {R"({"activate": false})", R"({"echo": 1})", R"({"activate": true})"},
       {R"({"echo":1})", happened(R"({"key":true})")}},
  };
  for (const Case& given : cases) {
    const SessionRun run = play(QStringList{kShow, kShown} + given.script);
    EXPECT_EQ(textOf(run.lines.mid(run.lines.indexOf(kShown) + 1)), textOf(given.expected)) << given.what;
    EXPECT_EQ(run.status, 0) << given.what;
  }
}

TEST(Session, DescribesTheWindow) {
  EXPECT_EQ(play({R"({"get": "window"})"}).lines, QStringList{R"({"result":null})"});

  const SessionRun run = play({kShow, R"({"type": "m_field", "text": "x"})", R"({"get": "window"})"});
  const QJsonObject window = run.result();
  const QJsonObject content = window.value("content").toObject();
  EXPECT_EQ(window.value("toolbar").toArray().size(), 5);
  EXPECT_EQ(window.value("animation").toObject().value("running"), false);
  // Of the window where no view is named.
  const struct {
    const char* view;
    const char* key;
    QJsonValue value;
  } cases[] = {
      {"", "controller", "FakeWindowController"},
      {"", "title", "Fake preferences"},
      {"", "key", true},
      {"", "selected", "Allgemein"},
      {"", "firstResponder", "m_field"},
      {"m_field", "frame", QJsonArray{20, 560.25, 200, 22}},
      {"m_field", "text", "x"},
      {"m_field", "placeholder", "Email"},
      {"m_field", "secure", false},
      {"m_field", "next", "m_secret"},
      {"m_secret", "secure", true},
      {"m_label", "color", "red"},
      {"m_label", "alignment", "right"},
      {"m_label", "font", QJsonObject{{"size", 13}, {"bold", false}}},
      {"m_link", "color", "blue"},
      {"m_box", "state", 0},
      {"m_off", "enabled", false},
      {"m_hidden", "hidden", true},
      {"m_spinner", "animating", true},
      {"m_popup", "items", QJsonArray{"5", "10", "15"}},
  };
  for (const auto& [view, key, value] : cases)
    EXPECT_EQ((*view ? viewNamed(content, view) : window).value(key), value) << view << ' ' << key;

  const QJsonArray children = viewNamed(content, "m_generalView").value("children").toArray();
  EXPECT_EQ(children.last().toObject(), (QJsonObject{{"class", "drawn"},
                                                     {"text", "Drawn"},
                                                     {"frame", QJsonArray{20, 590.5, 120, 16}},
                                                     {"font", QJsonObject{{"size", 16}, {"bold", true}}},
                                                     {"alignment", "center"}}));
}

TEST(Session, TokensGoThroughTheCache) {
  const SessionRun run = play({
      R"({"set": "tokens", "items": [{"userId": "u", "authority": "https://a", "resource": "r", "clientId": "c",)"
      R"( "accessToken": "t", "refreshToken": "f", "multiResource": false, "expiresIn": 3600},)"
      R"( {"userId": "u", "authority": "https://a", "clientId": "c", "refreshToken": "f", "multiResource": true}]})",
      R"({"get": "tokens"})",
  });
  const QJsonArray items = run.last().value("result").toArray();
  ASSERT_EQ(items.size(), 2);
  EXPECT_EQ(items.at(0).toObject().value("accessToken"), "t");
  EXPECT_EQ(items.at(1).toObject().value("multiResource"), true);
  const QDateTime expiry =
      QDateTime::fromString(items.at(0).toObject().value("expiresOn").toString(), Qt::ISODate);
  const qint64 seconds = QDateTime::currentDateTimeUtc().secsTo(expiry);
  EXPECT_TRUE(seconds > 3500 && seconds <= 3600) << seconds;
}

TEST(Session, KeepsItsStateFolderAndWritesPictures) {
  const QTemporaryDir folder;
  const QString picture = folder.filePath("pane.png");
  const SessionRun run = play({R"({"set": "store", "values": {"siteName": "kept"}})", kShow,
                               QStringLiteral(R"({"screenshot": "%1"})").arg(picture)},
                              {"--state", folder.path()});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(QImage(picture).width(), 440);
  const SessionRun again = play({R"({"get": "store"})"}, {"--state", folder.path()});
  EXPECT_EQ(again.result().value("siteName"), "kept");
  EXPECT_TRUE(play({R"({"get": "store"})"}).result().isEmpty());

  KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  ASSERT_TRUE(store.open(folder.path()));
  const SessionRun beside = play({R"({"get": "store"})"}, {"--state", folder.path()});
  store.close();
  EXPECT_EQ(beside.status, 2);
  EXPECT_TRUE(beside.lines.isEmpty());
  EXPECT_EQ(beside.complaints.trimmed(), "prefs-session: " + folder.path() + " is used by another program");
}

TEST(Session, StepsThatCannotBePlayedEndIt) {
  const std::pair<const char*, const char*> cases[] = {
      {"{", "not JSON"},
      {"[1]", "a step is a JSON object"},
      {R"({"comand": 2})", "unknown step: comand"},
      {R"({"command": 2, "notify": 7})", "several steps in one line: command, notify"},
      {R"({"command": "2"})", R"("command" is not a number)"},
      {R"({"command": -1})", R"("command" is not a whole number)"},
      {R"({"command": 2.5})", R"("command" is not a whole number)"},
      {R"({"command": 2, "content": [1]})", R"("content" is not an object)"},
      {R"({"command": 77, "content": {"a": "@nobody"}})", "there is no host constant nobody"},
      {R"({"click": "m_nothing"})", "there is no control m_nothing"},
      {R"({"click": "m_same"})",
       "m_same is not unique: m_generalView/GroupA/m_same, m_generalView/GroupB/m_same"},
      {R"({"click": "QWidget/m_same"})", "QWidget/m_same is not unique: "},
      {R"({"click": "GroupA/QRadioButton"})", "there is no control GroupA/QRadioButton"},
      {R"({"click": "GroupA/FakePane/m_same"})", "there is no control GroupA/FakePane/m_same"},
      {R"({"click": "m_box", "shift": 1})", R"("shift" is not true or false)"},
      {R"({"type": "m_box", "text": "a"})", "m_box is not a text field"},
      {R"({"choose": "m_popup", "item": "99"})", "there is no item 99"},
      {R"({"pane": "Nowhere"})", "there is no pane Nowhere"},
      {R"({"key": "Nokey"})", "there is no key Nokey"},
      {R"({"key": "w", "modifiers": ["hyper"]})", "there is no modifier hyper"},
      {R"({"close": false})", R"("close" is not true)"},
      {R"({"get": "nothing"})", R"(there is no "nothing" to get)"},
      {R"({"set": "store", "values": {"colour": 1}})", "the store has no colour"},
      {R"({"set": "host", "moon": 1})", "the host has no moon"},
      {R"({"set": "language", "to": "qqq"})", "there is no language qqq"},
      {R"({"post": "x", "thread": "other"})", R"("thread" cannot be "other")"},
      {R"({"wait": -5})", R"("wait" is not a whole number)"},
      {R"({"measure": "a", "font": "label", "size": 0})", R"("size" is out of range)"},
      {R"({"screenshot": "/nowhere/at/all.png"})", "cannot write /nowhere/at/all.png"},
  };
  for (const auto& [step, reason] : cases) {
    const SessionRun run = play({"# a script", kShow, step, R"({"echo": "not reached"})"});
    EXPECT_EQ(run.status, 2) << step;
    EXPECT_EQ(run.last().value("line"), 3) << step;
    EXPECT_TRUE(run.last().value("error").toString().startsWith(QLatin1String(reason)))
        << step << '\n'
        << qPrintable(run.lines.join(u'\n'));
  }
}

// A part of a line that is too long must not be played as a line of its own.
TEST(Session, ALineOfMoreThan64MBEndsIt) {
  const SessionRun run = play({R"({"echo": 1})", u'#' + QString(64 * 1024 * 1024, u' ') + R"({"echo": 2})"});
  EXPECT_EQ(textOf(run.lines), R"({"echo":1}
{"error":"the line is too long","line":2})");
}

TEST(Session, APluginThatCannotBeLoadedIsStatusThree) {
  for (const QString& plugin : {QStringLiteral("/nowhere/plugin.so"), QStringLiteral(PREFS_SESSION)}) {
    const SessionRun run = runSessionWith(plugin, {R"({"echo": 1})"});
    EXPECT_EQ(run.status, 3);
    EXPECT_TRUE(run.complaints.contains(plugin)) << qPrintable(run.complaints);
    EXPECT_TRUE(run.lines.isEmpty());
  }
}

TEST(Session, WaitRunsTimersAndMeasuresTexts) {
  const SessionRun run =
      play({R"({"wait": 20})", R"({"measure": "text", "text": "Meetings", "font": "bold", "size": 16})",
            R"({"measure": "Meetings", "font": "default"})"});
  ASSERT_EQ(run.lines.size(), 2);
  EXPECT_GT(run.object(0).value("result").toObject().value("width").toDouble(),
            run.result().value("width").toDouble());
  EXPECT_EQ(run.result().value("height").toDouble(), 16);
}

}  // namespace
