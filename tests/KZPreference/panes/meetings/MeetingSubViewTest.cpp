#include "KZPreference/panes/meetings/MeetingSubView.h"

#include <QClipboard>
#include <QTest>

#include "KZPreference/core/PreferenceActionDelegate.h"
#include "KZPreference/layout/PrefsVisible.h"
#include "host/KZUIExtension/BRNHyperlinkTextField.h"
#include "platform/FrameLayout.h"
#include "tests/KZPreference/core/RecordingHost.h"
#include "tests/kit/AssistiveTechnology.h"

namespace {

const QString kRoom = QStringLiteral("https://brenn.example/meet/ann");
const QString kVideo = QStringLiteral("ann@brenn.example");

class MeetingSubViewTest : public RecordingHost {
 protected:
  MeetingSubViewTest() {
    holder.resize(800, 200);
    view = new MeetingSubView({.x = 0, .y = 0, .width = 600, .height = 72}, &delegate);
    addSubview(&holder, view, frameOf(view));
    holder.show();
  }

  BRNHyperlinkTextField& link(const char* name) const {
    return *view->findChild<BRNHyperlinkTextField*>(name);
  }
  CoreSender sender{m_core};
  PreferenceActionDelegate delegate{&sender};
  QWidget holder;
  MeetingSubView* view;
};

TEST_F(MeetingSubViewTest, CopyPutsTheAddressOnTheClipboardAndShowsCopiedForASecond) {
  view->setPMRUrl(kRoom, kVideo);
  BRNHyperlinkTextField& room = link("m_copyPmrurlBtn");
  BRNHyperlinkTextField& video = link("m_copySipurlBtn");
  const Frame before = frameOf(&room);
  kit::AssistiveTechnology reader;
  QTest::mouseClick(&room, Qt::LeftButton);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), kRoom);
  EXPECT_EQ(room.stringValue(), "Copied");
  EXPECT_EQ(video.stringValue(), "Copy");
  const double copiedWidth =
      sizeOfText(QStringLiteral("Copied"), FontRole::BoldSystem, boldLabelFontSize).width + 4;
  EXPECT_EQ(frameOf(&room),
            (Frame{.x = before.x, .y = before.y, .width = copiedWidth, .height = before.height}));

  QTest::mouseClick(&video, Qt::LeftButton);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), kVideo);
  // A second click within the second copies again; the first click's reset still happens at its time.
  QTest::mouseClick(&room, Qt::LeftButton);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), kRoom);
  EXPECT_TRUE(kit::waitUntil([&] { return room.stringValue() + video.stringValue() == "CopyCopy"; }, 1500));
  EXPECT_EQ(frameOf(&room).width, copiedWidth);
  EXPECT_EQ(reader.takeAnnounced(), QStringList({"Copied", "Copied", "Copied"}));
}

// The group's frame can be too narrow for its link, but the pane is wide enough.
TEST_F(MeetingSubViewTest, ALinkBeyondTheFrameStillShows) {
  const double x = frameOf(view).width - 10;
  setFrame(&link("m_copySipurlBtn"), {.x = x, .y = 0, .width = 60, .height = 16});
  link("m_copySipurlBtn").show();
  setFrame(view, {.x = 0, .y = 8, .width = 500, .height = 72});
  EXPECT_EQ(frameOf(view).width, 500);
  EXPECT_EQ(link("m_copySipurlBtn").visibleRegion().boundingRect().width(), 60);
}

// The pending reset must not touch a destroyed view.
TEST_F(MeetingSubViewTest, AViewMayBeDestroyedBeforeTheReset) {
  view->setPMRUrl(kRoom, kVideo);
  QTest::mouseClick(&link("m_copyPmrurlBtn"), Qt::LeftButton);
  delete view;
  QTest::qWait(1100);
}

}  // namespace
