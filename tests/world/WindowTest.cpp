#include <QRect>
#include <ostream>

#include "tests/kit/Input.h"
#include "tests/world/World.h"

// GoogleTest prints what differs.
void PrintTo(const QRect& rect, std::ostream* out) {
  *out << rect.x() << ',' << rect.y() << ' ' << rect.width() << 'x' << rect.height();
}

namespace {

const QString kShowAccount =
    QStringLiteral(R"({"command":2,"content":{"kOpenPrefsViewType":"kPrefsAccountView"}})");
const QString kShowOutlook = QStringLiteral(
    R"({"command":17,"content":{"kKZCalendarIntegrationSource":"kKZCalendarIntegrationSourceOutlook"}})");
const QString kSwitchToMeetings = QStringLiteral(R"({"pane":"Meetings"})");

// While it is on the screen its height may change, nothing else.
void expectStill(const QList<QRect>& frames, const QRect& place) {
  for (const QRect& frame : frames) {
    ASSERT_EQ(QRect(frame.topLeft(), QSize(frame.width(), place.height())), place);
  }
}

using WorldWindow = WorldTest;

TEST_F(WorldWindow, OpensInPlaceWithThePaneThatWasAskedFor) {
  using Manager = Desktop::Manager;
  const struct {
    const char* name;
    Manager manager;
    QStringList steps;
    bool isResized;
  } cases[] = {
      {"General", Manager::Openbox, {kShow}, false},
      {"Account", Manager::Openbox, {kShowAccount}, false},
      {"Meetings, for a calendar", Manager::Openbox, {kShowOutlook}, false},
      {"Account, and switched at once", Manager::Openbox, {kShowAccount, kSwitchToMeetings}, true},
      {"no window manager", Manager::None, {kShowAccount}, false},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.name);
    World world(World::User::SignedIn, {.manager = each.manager});
    world.session.play(each.steps);
    world.settle();
    EXPECT_TRUE(kit::waitUntil([&] { return !world.server.focusedFrame().isNull(); }));
    const QList<QRect> frames = world.server.takeFrames();
    ASSERT_FALSE(frames.isEmpty());
    expectStill(frames, frames.first());
    if (!each.isResized) {
      EXPECT_EQ(frames.first().height(), frames.last().height());
    }
    EXPECT_EQ(world.server.focusedFrame(), frames.last());
  }
}

TEST_F(WorldWindow, StaysOnTheScreenWithEveryPane) {
  const struct {
    QSize screen;
    Desktop::Manager manager;
    bool isMoved;  // upwards, for the highest pane
  } cases[] = {
      {{1366, 768}, Desktop::Manager::Openbox, false},
      {{1024, 600}, Desktop::Manager::None, true},
      {{800, 480}, Desktop::Manager::Openbox, true},
      {{640, 400}, Desktop::Manager::Openbox, true},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(testing::PrintToString(QRect({}, each.screen)));
    World world(World::User::SignedIn, {.screen = each.screen, .manager = each.manager});
    world.session.play({kShow});
    QRect place = world.server.takeFrames().last();
    for (const char* pane : {"Account", "Meetings", "Notifications", "Video devices"}) {
      SCOPED_TRACE(pane);
      world.showPane(pane);
      const QList<QRect> frames = world.server.takeFrames();
      ASSERT_FALSE(frames.isEmpty());
      EXPECT_TRUE(world.server.screen().contains(frames.last())) << testing::PrintToString(frames.last());
      if (each.isMoved && pane == QLatin1String("Meetings")) {
        EXPECT_LT(frames.last().y(), place.y());
        place.moveTop(frames.last().y());
        continue;
      }
      expectStill(frames, place);
    }
  }
}

}  // namespace
