#include <gtest/gtest.h>

#include <QHash>
#include <QJsonArray>
#include <algorithm>
#include <cmath>

#include "tests/kit/SessionRun.h"

namespace {

const QString kName = QStringLiteral("Ada Lovelace");
const QString kSite = QStringLiteral("meet.example.com");
const QString kEmail = QStringLiteral("ada@example.com");
const QString kRoom = QStringLiteral("https://meet.example.com/a-personal-room-with-a-long-name-of-its-own");

// Opens both variants and compares the frames of their panes with the formulas for the measured texts.
class FrameFormulaTest : public testing::Test {
 protected:
  // One run of prefs-session: measures the texts, then gets the window with each pane.
  void play(bool isGuest, const QStringList& panes, const QString& room = {}, const QString& video = {}) {
    QStringList script{QStringLiteral(R"({"set": "store", "values": {"displayName": "%1", "siteName": "%2",)"
                                      R"("userName": "%3", "preferenceInfo": {"QRT_Preference_PMRUrl": "%4",)"
                                      R"("QRT_Preference_PMRSipUrl": "%5"}}})")
                           .arg(kName, kSite, kEmail, room, video)};
    const QStringList texts{kName,
                            kSite,
                            kEmail,
                            kRoom,
                            "Personal Room:",
                            "Video address:",
                            "Copy",
                            "Start Brenn Mivra Meetings when my computer starts",
                            "Schedule or start Mivra meetings from Microsoft Outlook",
                            "Full name:",
                            "Mivra site URL:",
                            "Email address:",
                            "Change",
                            "Your name:",
                            "Your email address:",
                            "Edit",
                            "Account",
                            "minutes before scheduled start time.",
                            "minutes after Snooze.",
                            "Automatically discover nearby devices",
                            "Number of days to show in meetings list:",
                            "Email:",
                            "Password:",
                            "Apply"};
    const struct {
      const char* font;
      int size;
    } fonts[] = {{"label", 13}, {"system", 13}, {"bold", 16}};
    for (const auto& font : fonts)
      for (const QString& text : texts)
        script.append(QStringLiteral(R"({"measure": "text", "text": "%1", "font": "%2", "size": %3})")
                          .arg(text, font.font)
                          .arg(font.size));
    if (isGuest) script.append(R"({"command": 1})");
    script.append(R"({"command": 2})");
    for (const QString& pane : panes) {
      script.append(QStringLiteral(R"({"pane": "%1"})").arg(pane));
      script.append(R"({"wait": 350})");
      script.append(R"({"get": "window"})");
    }
    const SessionRun run = runSession(script);
    ASSERT_EQ(run.status, 0) << qPrintable(run.complaints + run.lines.join(u'\n'));
    m_toolbar = 0;
    qsizetype at = 0;
    for (const auto& font : fonts)
      for (const QString& text : texts) {
        const QJsonObject size = run.object(at++).value("result").toObject();
        m_width.insert(font.font + text, size.value("width").toDouble());
        m_height.insert(font.font + text, size.value("height").toDouble());
      }
    for (const QString& pane : panes) m_windows.insert(pane, run.object(at++).value("result").toObject());
  }

  double label(const QString& text) const { return m_width.value("label" + text); }
  double system(const QString& text) const { return m_width.value("system" + text); }

  double guestGeneralWidth() const {
    return 32 + system("Start Brenn Mivra Meetings when my computer starts") + 32 + 20;
  }
  double meetingsWidth(const QString& room, const QString& video) const {
    const double labels =
        std::max(room.isEmpty() ? 0 : label("Personal Room:"), video.isEmpty() ? 0 : label("Video address:"));
    return 32 + label("Copy") + 60 + (labels + 4) + (std::max(label(room), label(video)) + 4);
  }
  double calendarWidth() const {
    return system("Number of days to show in meetings list:") + 4 + 60 + 50 + 32;
  }
  // The width that both variants share.
  double commonWidth() const {
    const double minutes =
        std::max(label("minutes before scheduled start time."), label("minutes after Snooze.")) + 4;
    const double credential = std::max(system("Email:"), system("Password:")) + 4;
    return std::max({320.0, 60 + 50 + 6 + minutes + 32,
                     label("Automatically discover nearby devices") + 4 + (32 + 18) + 4 + 32, calendarWidth(),
                     96 + credential + 10 + 220 + (system("Apply") + 40) + 32});
  }

  void expectFrame(const QString& pane, const QString& name, double x, double y, double width,
                   double height) {
    const QJsonArray frame =
        viewNamed(m_windows.value(pane).value("content").toObject(), name).value("frame").toArray();
    const double expected[] = {x, y, width, height};
    ASSERT_EQ(frame.size(), 4) << qPrintable(name);
    for (int at = 0; at < 4; ++at)
      EXPECT_NEAR(frame.at(at).toDouble(), expected[at], 1e-6) << qPrintable(pane + '/' + name) << " " << at;
  }

  // The pane fills the window below the toolbar, whose height is the same for all.
  void expectPane(const QString& pane, const QString& name, double width, double height) {
    expectFrame(pane, name, 0, 0, width, height);
    const QJsonArray window = m_windows.value(pane).value("frame").toArray();
    EXPECT_NEAR(window.at(2).toDouble(), width, 1e-6);
    const double toolbar = window.at(3).toDouble() - height;
    if (m_toolbar == 0) {
      m_toolbar = toolbar;
      m_top = window.at(1).toDouble() + window.at(3).toDouble();
    }
    EXPECT_NEAR(toolbar, m_toolbar, 1e-6) << qPrintable(pane);
    EXPECT_NEAR(window.at(1).toDouble() + window.at(3).toDouble(), m_top, 1e-6) << qPrintable(pane);
  }

  void expectNotificationsAndDevices(double width) {
    expectPane("Notifications", "m_notificationView", width, 88);
    expectFrame("Notifications", "MeetingAlertsSubView", 0, 16, width, 48);
    expectFrame("Notifications", "m_checkbox", 32, 32, width - 64, 16);
    expectFrame("Notifications", "m_minutesBtn", 60, 0, 50, 22);
    expectFrame("Notifications", "m_minutesTxt", 116, 3, width, 16);
    expectPane("Video devices", "m_proximityView", width, 64);
    expectFrame("Video devices", "m_autodetectBtn", 32, 24, width - 64, 16);
  }

  QHash<QString, double> m_width;
  QHash<QString, double> m_height;
  QHash<QString, QJsonObject> m_windows;
  double m_toolbar = 0;
  double m_top = 0;
};

const QStringList kAllPanes{"General", "Account", "Meetings", "Notifications", "Video devices"};

TEST_F(FrameFormulaTest, SignedIn) {
  ASSERT_NO_FATAL_FAILURE(play(false, kAllPanes));
  const double labels =
      std::max({system("Full name:"), system("Mivra site URL:"), system("Email address:")}) + 4;
  const double link = system("Change") + 4;
  const double content = std::max({system(kName), system(kEmail), system(kSite) + 6 + link}) + 4;
  const double width =
      std::max({commonWidth(), guestGeneralWidth(), 32 + labels + 10 + content + 32,
                32 + system("Schedule or start Mivra meetings from Microsoft Outlook") + 32 + 20});

  expectPane("General", "m_generalView", width, 84);
  expectFrame("General", "m_startCheckingBtn", 32, 48, width - 64, 16);
  expectFrame("General", "m_outlookIntegratingBtn", 32, 24, width - 64, 16);
  expectPane("Account", "m_accountView", width, 110);
  const struct {
    const char* label;
    const char* text;
    double y;
  } rows[] = {
      {"m_nameLabel", "m_nameTxt", 72}, {"m_siteLabel", "m_siteTxt", 48}, {"m_emailLabel", "m_emailTxt", 24}};
  for (const auto& row : rows) {
    expectFrame("Account", row.label, 32, row.y, labels, 16);
    expectFrame("Account", row.text, 32 + labels + 10, row.y, content, 16);
  }
  expectFrame("Account", "m_changeSiteBtn", 32 + labels + 10 + (system(kSite) + 4) + 6, 48, link, 16);
  expectPane("Meetings", "m_meetingView", width, 24 + 20 + 50 + 198 + 2 * 36 + 24);
  expectNotificationsAndDevices(width);
}

TEST_F(FrameFormulaTest, AddressesOfThePersonalRoom) {
  const struct {
    QString room;
    QString video;
    double height;
  } cases[] = {{kRoom, {}, 48}, {{}, kRoom, 48}, {kRoom, kEmail, 72}};
  for (const auto& [room, video, height] : cases) {
    ASSERT_NO_FATAL_FAILURE(play(false, {"Meetings"}, room, video));
    expectPane("Meetings", "m_meetingView", meetingsWidth(room, video), 24 + height + 50 + 198 + 2 * 36 + 24);
    const double lineHeight = m_height.value("labelCopy");
    const double widest = std::max(label("Personal Room:"), label("Video address:"));
    const bool hasBoth = !room.isEmpty() && !video.isEmpty();
    const struct {
      QString address;
      const char* label;
      const char* link;
      double y;
    } rows[] = {{room, "Personal Room:", "m_copyPmrurlBtn", hasBoth ? lineHeight + 8 : 0},
                {video, "Video address:", "m_copySipurlBtn", 0}};
    for (const auto& row : rows) {
      if (row.address.isEmpty()) continue;
      const double column = hasBoth ? widest : label(row.label);
      expectFrame("Meetings", row.label, 60, row.y, column, lineHeight);
      expectFrame("Meetings", row.address, 60 + column + 10, row.y, label(row.address), lineHeight);
      expectFrame("Meetings", row.link, 60 + widest + 10 + label(row.address) + 10, row.y, label("Copy") + 4,
                  lineHeight);
    }
  }
}

TEST_F(FrameFormulaTest, Guest) {
  ASSERT_NO_FATAL_FAILURE(play(true, kAllPanes));
  const double labels = std::max(system("Your name:"), system("Your email address:")) + 4;
  const double width = std::max({commonWidth(), guestGeneralWidth(), 32 + labels + 10 + 260 + 32});

  expectPane("General", "m_generalView", width, 64);
  expectFrame("General", "m_startCheckingBtn", 32, 24, width - 64, 16);
  expectPane("Account", "m_accountView", width, 136);
  const double text = 60 + labels + 10;
  const double input = std::floor(labels) + 60 + 10;
  const struct {
    const char* label;
    const char* text;
    const char* input;
    double y;
  } rows[] = {{"m_nameLabel", "m_nameTxt", "m_nameInputTxt", 64},
              {"m_emailLabel", "m_emailTxt", "m_emailInputTxt", 34}};
  for (const auto& row : rows) {
    expectFrame("Account", row.label, 60, row.y, labels, 22);
    expectFrame("Account", row.text, text, row.y, 260, 22);
    expectFrame("Account", row.input, input, row.y, 260, 22);
  }
  expectFrame("Account", "m_warningMsg", input, 9, width, 20);
  const double headingWidth = m_width.value("boldAccount");
  const double headingHeight = m_height.value("boldAccount");
  expectFrame("Account", "m_editBtn", 32 + headingWidth + 6, 136 - 24 - headingHeight * 0.5 - 8,
              system("Edit") + 4, 16);
  expectPane("Meetings", "m_meetingView", width, 24 + 50 + 172 + 36 + 24);
  expectFrame("Meetings", "m_calendarView", 0, 24 + 172 + 36, calendarWidth(), 50);
  expectFrame("Meetings", "m_splitline", 24, 24 + 172 + 18, width - 48, 1);
  expectNotificationsAndDevices(width);
}

}  // namespace
