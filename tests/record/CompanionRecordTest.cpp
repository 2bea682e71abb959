#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>

#include "companion/app/Companion.h"
#include "companion/exchange/CredentialChallenge.h"
#include "companion/format/ControlFinder.h"
#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/EventPump.h"
#include "companion/session/UserInput.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/record/PlayedRecord.h"

namespace {

using namespace std::chrono_literals;

class CompanionRecord : public testing::Test {
 protected:
  void TearDown() override {
    KZPlistFileHandle::sharedInstance().close();
    KZKeyChainHandle::sharedInstance().useStorage(KZKeyChainHandle::Storage::Memory);
  }

  static QWidget* control(const char* name) {
    return ControlFinder(contentViewOf(*findPreferencesWindow())).find(name).control;
  }
  void click(const char* name) {
    EXPECT_TRUE(m_input.click(control(name), {}).isNull()) << name;
    eventpump::settle();
  }
  void type(const char* name, const char* text) {
    EXPECT_TRUE(m_input.type(qobject_cast<QLineEdit*>(control(name)), text).isNull()) << name;
    eventpump::settle();
  }

  QString recordPath() const { return m_folder.filePath("record.jsonl"); }

  QTemporaryDir m_folder;
  UserInput m_input;
};

TEST_F(CompanionRecord, OfAnExchangeAccountPlaysAgain) {
  {
    Companion companion({});
    ASSERT_TRUE(companion.record(recordPath()));
    ASSERT_TRUE(companion.loadPlugin(PREFERENCES));
    companion.window()->become(demouser::Variant::SignedIn);
    companion.window()->showPreferences();
    eventpump::settle();
    const Window& window = *findPreferencesWindow();
    ASSERT_TRUE(m_input.clickPane(window, paneItemNamed(window, "Meetings"), {}).isNull());
    eventpump::run(400ms);
    click("m_outlookRadioBtn");
    type("m_emailInputTxt", "ann@brenn.example");
    click("m_detectBtn");
    eventpump::run(200ms);
    KZPlistFileHandle::sharedInstance().setSiteName("other.example.com");
    EXPECT_EQ(askForCredential(CredentialPurpose::Discovery).password, QString());
  }
  const QStringList lines = linesOf(recordPath());
  const QByteArray bytes = lines.join(u'\n').toUtf8();
  EXPECT_TRUE(bytes.contains("\"siteName\":\"other.example.com\"")) << bytes.toStdString();
  EXPECT_TRUE(lines.contains(R"({"click":"m_detectBtn"})")) << bytes.toStdString();
  const SessionRun run = runSession(lines, {"--check"});
  EXPECT_EQ(run.status, 0) << qPrintable(run.lines.value(run.lines.size() - 1)) << bytes.toStdString();
}

TEST_F(CompanionRecord, TellsTheUserWhatBecomesOfIt) {
  PluginHost host([](const QUrl&) { return true; });
  Recording recording(&host);
  QSignalSpy noticed(&recording, &Recording::noticed);
  QSignalSpy changed(&recording, &Recording::changed);
  EXPECT_FALSE(recording.start("/nowhere/at/all"));
  EXPECT_TRUE(noticed.takeFirst().first().toString().contains("Choose another place"));
  ASSERT_TRUE(recording.start(recordPath()));
  EXPECT_TRUE(noticed.takeFirst().first().toString().contains(recordPath()));
  recording.stop();
  EXPECT_EQ(changed.size(), 2);
  // A full disk.
  ASSERT_TRUE(recording.start("/dev/full"));
  noticed.clear();
  ASSERT_TRUE(noticed.wait(1000));
  EXPECT_FALSE(recording.isRunning());
  EXPECT_TRUE(noticed.first().first().toString().contains("Make room"));
}

}  // namespace
