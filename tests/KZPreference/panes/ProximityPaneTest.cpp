#include <QCheckBox>
#include <QTest>

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

class ProximityPaneTest : public RecordingHost {
 protected:
  static QCheckBox* box() { return find<QCheckBox>("m_autodetectBtn"); }
  QString click() {
    QTest::mouseClick(box(), Qt::LeftButton, {}, QPoint(8, 8));
    const QStringList sent = takeSent();
    EXPECT_TRUE(sent.value(1).startsWith("23 ")) << qPrintable(sent.join('\n'));
    return sent.value(0);
  }
};

TEST_F(ProximityPaneTest, TheStoreIsReadAgainAtEveryShowing) {
  auto& store = KZPlistFileHandle::sharedInstance();
  command(2);
  clickPane("Video devices");
  EXPECT_TRUE(box()->isChecked());
  const struct {
    Dictionary stored;
    bool isOn;
  } rows[] = {{{{kKZVideoDeviceAutodetect, false}}, false},
              {{}, true},
              {{{kKZVideoDeviceAutodetect, "no"}}, true},
              {{{kKZVideoDeviceAutodetect, 0}}, false}};
  for (const auto& row : rows) {
    clickPane("General");
    store.setVideoDevice(row.stored);
    clickPane("Video devices");
    EXPECT_EQ(box()->isChecked(), row.isOn);
  }
}

TEST_F(ProximityPaneTest, EachClickSendsTheWholeDictionaryOfTheLastReading) {
  auto& store = KZPlistFileHandle::sharedInstance();
  store.setVideoDevice({{"other", 1}, {kKZVideoDeviceAutodetect, true}});
  command(2);
  clickPane("Video devices");
  EXPECT_EQ(click(), R"(19 {"kKZVideoDeviceAutodetect":false,"other":1})");
  store.setVideoDevice({{"new", 2}});
  EXPECT_EQ(click(), R"(19 {"kKZVideoDeviceAutodetect":true,"other":1})");
  EXPECT_EQ(store.videoDevice(), (Dictionary{{"other", 1}, {kKZVideoDeviceAutodetect, true}}));
  // Without a stored dictionary, the pane keeps the one it has.
  clickPane("General");
  store.setValue("videoDevice", QVariant());
  clickPane("Video devices");
  EXPECT_EQ(click(), R"(19 {"kKZVideoDeviceAutodetect":false,"other":1})");
  command(20, Dictionary{{kproximityCommand, kstartDetectVD}});
  EXPECT_EQ(click(), R"(19 {"kKZVideoDeviceAutodetect":false})");
}

}  // namespace
