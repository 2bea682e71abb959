#include <QCheckBox>
#include <QTest>

#include "KZPreference/panes/general/PrefGeneralView.h"
#include "host/KZCommonUI/MarigoldWarningView.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/FrameLayout.h"
#include "platform/WindowController.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

class GeneralPanesTest : public RecordingHost {
 protected:
  static QCheckBox* login() { return find<QCheckBox>("m_startCheckingBtn"); }
  static QCheckBox* outlook() { return find<QCheckBox>("m_outlookIntegratingBtn"); }
  static void click(QCheckBox* box) { QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, 8)); }
};

TEST_F(GeneralPanesTest, AStoredChoiceIsShownAndNoneCountsAsOn) {
  auto& store = KZPlistFileHandle::sharedInstance();
  const struct {
    QVariant stored;
    bool isOn;
  } rows[] = {{QVariant(), true}, {false, false}, {true, true}, {0, false}, {1, true}, {"true", false}};
  for (const auto& row : rows) {
    store.setValue(KZLaunchAtLogin, row.stored);
    store.setValue(KZEnableOutlookKZPlugin, row.stored);
    for (const quint64 number : {3, 2}) command(number);
    settle();
    EXPECT_EQ(login()->isChecked(), row.isOn) << qPrintable(row.stored.toString());
    EXPECT_EQ(outlook()->isChecked(), row.isOn);
    for (const quint64 number : {1, 2}) command(number);
    settle();
    EXPECT_EQ(login()->isChecked(), row.isOn);
    EXPECT_EQ(window()->findChild<QCheckBox*>("m_outlookIntegratingBtn"), nullptr);
  }
}

TEST_F(GeneralPanesTest, EveryWarningMakesTheWindowTaller) {
  command(2);
  auto* pane = find<PrefGeneralView>("m_generalView");
  const Frame before = frameOf(window());
  const double paneHeight = frameOf(pane).height;
  pane->showWarningView();
  auto* notice = pane->findChild<MarigoldWarningView*>();
  ASSERT_TRUE(notice->isVisible());
  const int height = notice->height();
  EXPECT_EQ(frameOf(window()).height, before.height + height);
  EXPECT_EQ(notice->visibleRegion().boundingRect(), notice->rect());
  EXPECT_EQ(outlook()->visibleRegion().boundingRect(), outlook()->rect());
  pane->showWarningView();
  EXPECT_EQ(frameOf(window()).height, before.height + 2 * height);
  EXPECT_EQ(frameOf(pane).height, paneHeight);
}

}  // namespace
