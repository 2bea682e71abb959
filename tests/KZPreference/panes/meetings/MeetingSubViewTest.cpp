#include "KZPreference/panes/meetings/MeetingSubView.h"

#include <QClipboard>
#include <QTest>

#include "KZPreference/core/PreferenceActionDelegate.h"
#include "KZPreference/layout/PrefsVisible.h"
#include "KZPreference/panes/meetings/PrefMeetingView+Visible.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUIExtension/BRNHyperlinkTextField.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/FrameLayout.h"
#include "platform/ViewAccessible.h"
#include "tests/KZPreference/core/RecordingHost.h"
#include "tests/kit/AssistiveTechnology.h"

namespace {

const QString kRoom = QStringLiteral("https://brenn.example/meet/ann");
const QString kVideo = QStringLiteral("ann@brenn.example");

class MeetingSubViewTest : public RecordingHost {
 protected:
  MeetingSubViewTest() {
    ViewAccessible::install();
    holder.resize(800, 200);
    view = new MeetingSubView({.x = 0, .y = 0, .width = 600, .height = 72}, &delegate);
    addSubview(&holder, view, frameOf(view));
    holder.show();
  }

  BRNHyperlinkTextField& link(const char* name) const {
    return *view->findChild<BRNHyperlinkTextField*>(name);
  }
  // The texts drawn below the title, with their positions.
  QStringList drawn() const {
    QStringList lines;
    for (const DrawnText& text : view->drawnTexts().mid(1))
      lines.append(QStringLiteral("%1 at %2,%3").arg(text.text).arg(text.frame.x).arg(text.frame.y));
    return lines;
  }

  CoreSender sender{m_core};
  PreferenceActionDelegate delegate{&sender};
  QWidget holder;
  MeetingSubView* view;
};

TEST_F(MeetingSubViewTest, AddressesAndTheirLinksAreWhereTheyShouldBe) {
  const QString pmrlabel = PrefMeetingViewVisible::pmrlabel();
  const QString siplabel = PrefMeetingViewVisible::siplabel();
  const double column = std::max(labelTextWidth(pmrlabel), labelTextWidth(siplabel));
  const double rowPitch = sizeOfText(kVideo, FontRole::Label, labelFontSize).height + 8;
  const auto line = [](const QString& text, double x, double y) {
    return QStringLiteral("%1 at %2,%3").arg(text).arg(x).arg(y);
  };
  EXPECT_TRUE(drawn().isEmpty());
  EXPECT_TRUE(link("m_copyPmrurlBtn").isHidden() && link("m_copySipurlBtn").isHidden());

  view->setPMRUrl(QString(), kVideo);
  EXPECT_EQ(drawn(),
            QStringList({line(siplabel, 60, 0), line(kVideo, 60 + labelTextWidth(siplabel) + 10, 0)}));
  EXPECT_TRUE(link("m_copyPmrurlBtn").isHidden());
  EXPECT_EQ(frameOf(&link("m_copySipurlBtn")).x, 60 + column + 10 + labelTextWidth(kVideo) + 10);

  view->setPMRUrl(kRoom, QString());
  EXPECT_EQ(drawn(),
            QStringList({line(siplabel, 60, 0), line(pmrlabel, 60, rowPitch),
                         line(kVideo, 60 + column + 10, 0), line(kRoom, 60 + column + 10, rowPitch)}));
  EXPECT_EQ(frameOf(&link("m_copyPmrurlBtn")).x, 60 + column + 10 + labelTextWidth(kRoom) + 10);
  EXPECT_EQ(frameOf(&link("m_copyPmrurlBtn")).y, rowPitch);
  view->setPMRUrl(QString(), QString());
  EXPECT_EQ(drawn().size(), 4);
}

TEST_F(MeetingSubViewTest, AssistiveTechnologyReadsByRows) {
  view->setPMRUrl(kRoom, kVideo);
  QAccessibleInterface* group = QAccessible::queryAccessibleInterface(view);
  QStringList names;
  for (int i = 0; i < group->childCount(); ++i) {
    const QAccessibleInterface* child = group->child(i);
    names.append(child->text(QAccessible::Name));
    EXPECT_EQ(group->indexOfChild(child), i);
    EXPECT_TRUE(view->rect().translated(view->mapToGlobal(QPoint())).intersects(child->rect())) << i;
  }
  EXPECT_EQ(names, QStringList({"Meetings", "Edit", "Personal Room:", kRoom, "Copy personal room",
                                "Video address:", kVideo, "Copy video address"}));
  EXPECT_EQ(group->child(0)->role(), QAccessible::Heading);
}

TEST_F(MeetingSubViewTest, TheGroupsSizeFollowsTheStoredAddresses) {
  const QString copy = QStringLiteral("Copy");
  const double fixed = 32 + labelTextWidth(copy) + 60 + 4 + 4;
  const double pmr = labelTextWidth(PrefMeetingViewVisible::pmrlabel());
  const double sip = labelTextWidth(PrefMeetingViewVisible::siplabel());
  const struct {
    QVariant room;
    QVariant video;
    double width;
    double height;
  } cases[] = {
      {QVariant(), QVariant(), 320, 20},
      {QStringLiteral(""), 5, 320, 20},
      {kRoom, QVariant(), fixed + pmr + labelTextWidth(kRoom), 48},
      {QVariant(), kVideo, fixed + sip + labelTextWidth(kVideo), 48},
      {kRoom, kVideo, fixed + std::max(pmr, sip) + labelTextWidth(kRoom), 72},
  };
  for (const auto& tried : cases) {
    Dictionary info;
    if (tried.room.isValid()) info.insert(QRT_Preference_PMRUrl, tried.room);
    if (tried.video.isValid()) info.insert(QRT_Preference_PMRSipUrl, tried.video);
    KZPlistFileHandle::sharedInstance().setPreferenceInfo(info);
    const Size size = PrefMeetingViewVisible::caculateMeetingSubViewSize();
    EXPECT_DOUBLE_EQ(size.width, tried.width);
    EXPECT_EQ(size.height, tried.height);
  }
}

TEST_F(MeetingSubViewTest, TheEditLinkRequestsTheMeetingSettings) {
  takeSent();
  QTest::mouseClick(&link("m_editBtn"), Qt::LeftButton);
  const QStringList sent = takeSent();
  EXPECT_EQ(sent.value(0), R"(11 {"QRT_Require_Link_Action_Type":1})");
  EXPECT_TRUE(sent.value(1).contains("Click_EditMeetingNowSettings")) << qPrintable(sent.value(1));
}

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
