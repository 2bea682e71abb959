#include <QLineEdit>
#include <QRadioButton>

#include "KZPreference/core/PreferenceActionDelegate.h"
#include "KZPreference/panes/meetings/PrefMeetingView.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/FrameLayout.h"
#include "platform/PopUpButton.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

class MeetingsPaneTest : public RecordingHost {
 protected:
  std::unique_ptr<PrefMeetingView> signedInPane() {
    const Size size = PrefMeetingView::caculateViewSize();
    return std::make_unique<PrefMeetingView>(Frame{.x = 0, .y = 0, .width = 600, .height = size.height},
                                             &delegate);
  }
  static Frame frameIn(const QWidget& pane, const char* name) {
    return frameOf(pane.findChild<QWidget*>(QLatin1String(name)));
  }

  CoreSender sender{m_core};
  PreferenceActionDelegate delegate{&sender};
};

// The distances of the visible source buttons from the group's upper edge, in order.
QList<double> sourceRows(const QWidget& pane) {
  QList<double> rows;
  for (const auto* button : pane.findChildren<QRadioButton*>())
    if (!button->isHidden()) rows.append(frameOf(button->parentWidget()).height - frameOf(button).y);
  return rows;
}

// Rows are packed from the top. A source once hidden stays hidden, but takes its row when it is enabled
// again. The pane and the heading grow with every record.
TEST_F(MeetingsPaneTest, OptionRecordsPackTheSourcesAndGrowThePane) {
  const struct {
    KZCalendarIntegrationOption first;
    QList<double> rows;
    QList<double> rowsWithAll;
  } cases[] = {
      {{.isEnableNone = true, .isEnableGoogle = true}, {50, 76, 102, 128}, {50, 76, 102, 128}},
      {{.isEnableNone = true}, {50, 76, 102}, {50, 76, 128}},
      {{.isEnableMivra = false, .isEnableGoogle = true, .isEnableOutlook = false},
       {50, 76, 102},
       {76, 102, 128}},
      {{}, {50, 76}, {76, 128}},
  };
  const KZCalendarIntegrationOption all{.isEnableNone = true, .isEnableGoogle = true};
  for (const auto& tried : cases) {
    const auto pane = signedInPane();
    const char* const raised[] = {"m_meetingView", "m_calendarView", "m_splitline1", "m_splitline2"};
    std::vector<Frame> before;
    for (const char* name : raised) before.push_back(frameIn(*pane, name));
    const double height = frameOf(pane.get()).height;
    const double groupHeight = frameIn(*pane, "m_integrationView").height;
    const double headingWidth = frameIn(*pane, "m_integrationTxt").width;
    double growth = 0;
    int records = 0;
    for (const KZCalendarIntegrationOption& option : {tried.first, all, tried.first}) {
      SCOPED_TRACE(std::to_string(&tried - cases) + ", record " + std::to_string(++records));
      pane->setCalendarIntergrationOption(option);
      growth += (option.isEnableNone ? 26 : 0) + (option.isEnableGoogle ? 26 : 0);
      EXPECT_EQ(frameOf(pane.get()).height, height + growth);
      EXPECT_EQ(frameIn(*pane, "m_integrationView").height, groupHeight + growth);
      for (std::size_t i = 0; i < before.size(); ++i)
        EXPECT_EQ(frameIn(*pane, raised[i]).y, before[i].y + growth) << raised[i];
      const Frame heading = frameIn(*pane, "m_integrationTxt");
      EXPECT_EQ(heading.width, headingWidth + 4 * records);
      EXPECT_EQ(heading.maxY(), groupHeight + growth);
      EXPECT_EQ(frameIn(*pane, "m_emailInputTxt").y, 94);
      EXPECT_EQ(sourceRows(*pane), records == 2 ? tried.rowsWithAll : tried.rows);
    }
  }
}

TEST_F(MeetingsPaneTest, ManyRecordsAndUpdatesLeaveNothingBehind) {
  const auto pane = signedInPane();
  const auto round = [&pane] {
    pane->setCalendarIntergrationOption({.isEnableNone = true, .isEnableGoogle = true});
    pane->setCalendarPreference({{kKZCalendarIntegrationSource, kKZCalendarIntegrationSourceOutlook},
                                 {kKZCalendarIntegrationDays, QStringLiteral("7")}});
    pane->setPmrurl(QStringLiteral("https://brenn.example/ann"), QStringLiteral("ann@brenn.example"));
  };
  const double height = frameOf(pane.get()).height;
  round();
  const qsizetype objects = pane->findChildren<QObject*>().size();
  for (int i = 0; i < 20; ++i) round();
  EXPECT_EQ(pane->findChildren<QObject*>().size(), objects);
  EXPECT_EQ(frameOf(pane.get()).height, height + 21 * 52);
}

TEST_F(MeetingsPaneTest, TheDaysPopUpShowsWhatIsStoredAndStoresWhatIsChosen) {
  const auto pane = signedInPane();
  auto* days = pane->findChild<PopUpButton*>("m_daysBtn");
  const struct {
    QVariant stored;
    const char* title;
  } cases[] = {{QVariant(), "7"}, {"14", "14"}, {"1", "1"}, {"30", "30"}, {14, "14"}, {true, "7"}};
  for (const auto& tried : cases) {
    pane->setCalendarPreference({{kKZCalendarIntegrationDays, tried.stored}});
    EXPECT_EQ(days->title(), tried.title);
  }
  days->setCurrentIndex(2);
  Q_EMIT days->activated(2);
  EXPECT_EQ(KZPlistFileHandle::sharedInstance().calendarIntegration(),
            (Dictionary{{kKZCalendarIntegrationDays, "14"}}));
}

}  // namespace
