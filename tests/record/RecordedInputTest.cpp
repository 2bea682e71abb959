#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolBar>
#include <QWindow>
#include <atomic>
#include <optional>
#include <thread>

#include "bench/ReducedMotion.h"
#include "companion/format/ControlFinder.h"
#include "companion/record/Recorder.h"
#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/EventPump.h"
#include "host/KZFoundation/KZNotificationCenter.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/PopUpButton.h"
#include "platform/WindowController.h"
#include "tests/record/PlayedRecord.h"

namespace {

using namespace std::chrono_literals;

// The real window under a real mouse and keyboard, as the display server delivers them.
class RecordedInput : public testing::Test {
 protected:
  void SetUp() override {
    record();
    ASSERT_TRUE(m_host.load(PREFERENCES));
    m_host.trigger(KZCommand::KZCmdShowPreference);
    eventpump::settle();
    reduceMotion(window());
    m_lines.clear();
  }
  void TearDown() override { KZPlistFileHandle::sharedInstance().close(); }

  void record() {
    m_recorder.reset();
    m_recorder.emplace(
        &m_host, [this](const QByteArray& line) { return m_lines.append(QString::fromUtf8(line)), true; },
        Recorder::Options{.clock = [] { return 0ms; }});
  }

  static Window* window() { return findPreferencesWindow(); }
  static QWidget* control(const QString& name) {
    return ControlFinder(contentViewOf(*window())).find(name).control;
  }

  static void clickOn(const QWidget* widget, Qt::KeyboardModifiers modifiers = {}) {
    const QPoint middle = widget->mapTo(widget->window(), widget->rect().center());
    QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, modifiers, middle);
    eventpump::settle();
  }
  static void press(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(window()->windowHandle(), static_cast<Qt::Key>(key), modifiers);
    eventpump::settle();
  }
  static void type(const char* text) {
    for (const char* key = text; *key; ++key) QTest::keyClick(window()->windowHandle(), *key);
    eventpump::settle();
  }
  static void showPane(const char* label) {
    clickOn(toolBarOf(*window())->widgetForAction(paneItemNamed(*window(), label)));
  }

  QString steps() const { return stepsIn(m_lines).join(u'\n'); }

  PluginHost m_host;
  QStringList m_lines;
  std::optional<Recorder> m_recorder;
};

TEST_F(RecordedInput, ClicksAndPanes) {
  clickOn(control("m_startCheckingBtn"));
  showPane("Notifications");
  clickOn(control("m_checkbox"), Qt::ShiftModifier);
  // Pressed here and released there is no click.
  const QWidget* box = control("m_checkbox");
  const QPoint middle = box->mapTo(window(), box->rect().center());
  QTest::mousePress(window()->windowHandle(), Qt::LeftButton, {}, middle);
  QTest::mouseRelease(window()->windowHandle(), Qt::LeftButton, {}, {2, 2});
  EXPECT_EQ(steps().toStdString(),
            "{\"click\":\"m_startCheckingBtn\"}\n"
            "{\"pane\":\"Notifications\"}\n"
            "{\"click\":\"m_checkbox\",\"shift\":true}");
}

TEST_F(RecordedInput, ATextIsOneStepBeforeWhatFollows) {
  showPane("Meetings");
  clickOn(control("m_outlookRadioBtn"));
  m_lines.clear();
  clickOn(control("m_emailInputTxt"));
  type("ann@brenn.examplf");
  press(Qt::Key_Backspace);
  type("e");
  EXPECT_FALSE(steps().contains("ann@"));
  press(Qt::Key_Return);
  m_host.notify(static_cast<KZNotify>(99), {});
  EXPECT_EQ(steps().toStdString(),
            "{\"click\":\"m_emailInputTxt\"}\n"
            "{\"type\":\"m_emailInputTxt\",\"text\":\"ann@brenn.example\"}\n"
            "{\"key\":\"Return\",\"in\":\"m_emailInputTxt\"}\n"
            "{\"notify\":99}");
  const qsizetype returned = m_lines.indexOf(R"({"key":"Return","in":"m_emailInputTxt"})");
  EXPECT_TRUE(m_lines.value(returned + 1).startsWith("# <- {\"sent\":15")) << qPrintable(m_lines.join(u'\n'));
}

TEST_F(RecordedInput, AChoiceIsOneStepByMouseAndByKeyboard) {
  showPane("Notifications");
  m_lines.clear();
  auto* button = qobject_cast<PopUpButton*>(control("m_minutesBtn"));
  ASSERT_TRUE(button);
  clickOn(button);
  const QAbstractItemView* list = button->view();
  ASSERT_TRUE(list->isVisible());
  // A list that has just opened takes no release for a while, lest the opening click chooses.
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  const QPoint first =
      list->viewport()->mapTo(list->window(), list->visualRect(list->model()->index(0, 0)).center());
  QTest::mouseClick(list->window()->windowHandle(), Qt::LeftButton, {}, first);
  eventpump::settle();
  const std::string chosen =
      "{\"choose\":\"m_minutesBtn\",\"item\":\"" + button->title().toStdString() + "\"}";
  EXPECT_EQ(steps().toStdString(), chosen);
  m_lines.clear();
  press(Qt::Key_Down);
  EXPECT_EQ(steps().toStdString(),
            "{\"choose\":\"m_minutesBtn\",\"item\":\"" + button->title().toStdString() + "\"}");
}

TEST_F(RecordedInput, KeysThatAreNoText) {
  press(Qt::Key_Tab);
  press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_TRUE(stepsIn(m_lines).value(0).startsWith("{\"key\":\"Tab\"")) << qPrintable(steps());
  EXPECT_TRUE(stepsIn(m_lines).value(1).startsWith("{\"key\":\"w\"")) << qPrintable(steps());
  EXPECT_TRUE(steps().endsWith("\"modifiers\":[\"command\"]}")) << qPrintable(steps());
  EXPECT_FALSE(window()->isVisible());
}

TEST_F(RecordedInput, AKeyOfAPasswordIsNoStep) {
  showPane("Meetings");
  clickOn(control("m_outlookRadioBtn"));
  auto* field = qobject_cast<QLineEdit*>(control("m_emailInputTxt"));
  field->setEchoMode(QLineEdit::Password);
  clickOn(field);
  m_lines.clear();
  type("pass");
  QTest::keyClick(window()->windowHandle(), 'q', Qt::AltModifier);
  type("word");
  m_host.notify(static_cast<KZNotify>(99), {});
  EXPECT_EQ(field->text(), "passqword");
  EXPECT_EQ(steps().toStdString(), "{\"type\":\"m_emailInputTxt\",\"text\":\"secret-1\"}\n{\"notify\":99}");
}

TEST_F(RecordedInput, AWarningThatIsReadIsAComment) {
  m_host.notify(KZNotify::KZNotifyCheckForUpdatesDone,
                Dictionary{{"kKZResult", "kKZFail"},
                           {"kKZErrorHandleData", Dictionary{{"kKZErrorMessage", "It is gone."}}}});
  eventpump::settle();
  QWidget* warning = nullptr;
  for (QWidget* one : QApplication::topLevelWidgets()) {
    if (one->isVisible() && one->inherits("KZWarningWindow")) warning = one;
  }
  ASSERT_TRUE(warning);
  clickOn(warning->findChild<QPushButton*>());
  EXPECT_FALSE(warning->isVisible());
  EXPECT_TRUE(m_lines.contains("# No step can say it: a click on QPushButton in KZWarningWindow"))
      << qPrintable(m_lines.join(u'\n'));
}

TEST_F(RecordedInput, ARecorderMayComeAndGoInTheMiddleOfAnInput) {
  const QMetaObject::Connection again = QObject::connect(paneItemNamed(*window(), "Meetings"),
                                                         &QAction::triggered, window(), [this] { record(); });
  showPane("Meetings");
  QObject::disconnect(again);
  m_lines.clear();
  showPane("Notifications");
  EXPECT_EQ(steps().toStdString(), "{\"pane\":\"Notifications\"}");
}

TEST(RecorderLife, AnEndWaitsForAWorkersLine) {
  PluginHost host;
  ASSERT_TRUE(host.load(PREFERENCES));
  std::atomic<bool> isEnough = false;
  std::atomic<int> posted = 0;
  std::thread worker([&] {
    while (!isEnough) {
      KZNotificationCenter::defaultCenter().post({"HTTPAuthenticationDatasource", nullptr, Dictionary()});
      ++posted;
    }
  });
  for (int round = 0; round < 50; ++round) {
    const int before = posted;
    auto isAlive = std::make_shared<std::atomic<bool>>(true);
    std::atomic<int> tooLate = 0;
    {
      const Recorder recorder(&host,
                              [&, isAlive](const QByteArray&) { return tooLate += *isAlive ? 0 : 1, true; },
                              {.clock = [] { return 0ms; }});
      while (posted < before + 2) std::this_thread::yield();
    }
    *isAlive = false;
    EXPECT_EQ(tooLate, 0);
  }
  isEnough = true;
  worker.join();
}

TEST_F(RecordedInput, InputForAnotherWindowIsNoStep) {
  QLineEdit field;
  field.show();
  QTest::keyClick(field.windowHandle(), Qt::Key_A);
  clickOn(&field);
  EXPECT_FALSE(steps().contains("\"key\"")) << qPrintable(steps());
  EXPECT_FALSE(steps().contains("\"click\"")) << qPrintable(steps());
}

}  // namespace
