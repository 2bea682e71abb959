#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>
#include <memory>

#include "platform/FrameLayout.h"
#include "platform/Look.h"
#include "platform/PopUpButton.h"
#include "platform/Spinner.h"
#include "platform/WindowController.h"
#include "tests/platform/look/HostPalettes.h"
#include "tests/platform/look/SampleToolbar.h"

namespace {

class LookStyleTest : public testing::Test {
 protected:
  LookStyleTest() { QApplication::setPalette(hostPalette(LookScheme::Light)); }
  ~LookStyleTest() override { QApplication::setPalette(hostPalette(LookScheme::Light)); }

  template <typename Control>
  Control* add(Control* control, const Frame& frame) {
    addSubview(&m_window, control, frame);
    return control;
  }

  void show() {
    m_window.resize(500, 300);
    m_window.show();
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
  }

  Window m_window;
};

bool hasColorNear(const QImage& picture, const QColor& color) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor pixel = picture.pixelColor(x, y);
      if (qAbs(pixel.red() - color.red()) + qAbs(pixel.green() - color.green()) +
              qAbs(pixel.blue() - color.blue()) <
          12)
        return true;
    }
  }
  return false;
}

// The bounds of the pixels that differ from that background.
QRect drawnOn(const QColor& ground, const QImage& picture, const QRect& area) {
  QRect found;
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x)
      if (qAbs(qGray(picture.pixel(x, y)) - qGray(ground.rgb())) > 20) found |= QRect(x, y, 1, 1);
  return found;
}

TEST_F(LookStyleTest, LivePaletteChangeRecoloursEverything) {
  QToolBar* toolbar = sampleToolbar(&m_window);
  auto* popUp = add(new PopUpButton({"7", "14"}), {20, 100, 50, 22});
  auto* field = add(new QLineEdit("text"), {20, 60, 100, 22});
  show();
  toolbar->setGeometry(0, 0, 500, 60);
  QWidget* item = toolbar->widgetForAction(toolbar->actions().at(0));
  for (const LookScheme scheme :
       {LookScheme::Dark, LookScheme::HighContrastDark, LookScheme::HighContrastLight, LookScheme::Light}) {
    QApplication::setPalette(hostPalette(scheme));
    QApplication::processEvents();
    const QPalette& palette = lookPalette(scheme);
    EXPECT_EQ(m_window.grab().toImage().pixelColor(250, 200), palette.color(QPalette::Window))
        << schemeName(scheme);
    EXPECT_EQ(field->grab().toImage().pixelColor(90, 11), palette.color(QPalette::Base))
        << schemeName(scheme);
    EXPECT_EQ(popUp->view()->palette().color(QPalette::Highlight), palette.color(QPalette::Highlight));
    const bool isDark = qGray(palette.color(QPalette::Window).rgb()) < 128;
    const QImage icon = item->grab(QRect(item->width() / 2 - 12, 5, 24, 24)).toImage();
    const auto isInk = [isDark](const QColor& pixel) {
      return isDark ? pixel.lightness() > 150 : pixel.lightness() < 110;
    };
    EXPECT_TRUE([&] {
      for (int x = 0; x < icon.width(); ++x)
        if (isInk(icon.pixelColor(x, 5))) return true;
      return false;
    }()) << "the icon is not legible, "
         << schemeName(scheme);
  }
}

TEST_F(LookStyleTest, TheApplicationIsLeftAlone) {
  const QPalette before = QApplication::palette();
  QStyle* style = QApplication::style();
  show();
  EXPECT_EQ(QApplication::palette(), before);
  EXPECT_EQ(QApplication::style(), style);
  EXPECT_EQ(lookStyle()->parent(), qApp);
}

// Of controls that the panes do not have.
TEST_F(LookStyleTest, KeyboardFocusIsVisibleInEveryScheme) {
  auto* tabs = new QTabBar;
  tabs->addTab("Inspector");
  const QList<QWidget*> controls{add(tabs, {120, 10, 100, 26}),
                                 add(new QTableWidget(2, 2), {120, 40, 200, 120})};
  show();
  for (const LookScheme scheme : allSchemes) {
    QApplication::setPalette(hostPalette(scheme));
    QApplication::processEvents();
    for (QWidget* control : controls) {
      SCOPED_TRACE(std::string(schemeName(scheme)) + ' ' + control->metaObject()->className());
      if (QWidget* focused = QApplication::focusWidget()) focused->clearFocus();
      const QImage plain = control->grab().toImage();
      QTest::keyClick(&m_window, Qt::Key_Tab);
      control->setFocus(Qt::TabFocusReason);
      const QImage marked = control->grab().toImage();
      EXPECT_TRUE(hasColorNear(marked, m_window.palette().color(QPalette::Highlight)));
      EXPECT_NE(plain, marked);
    }
  }
}

TEST_F(LookStyleTest, TheChosenTabDiffersFromTheOthersInEveryScheme) {
  auto* tabs = add(new QTabBar, {20, 100, 300, 26});
  for (const char* title : {"Inspector", "Meetings", "Telemetry"}) tabs->addTab(title);
  show();
  for (const LookScheme scheme : allSchemes) {
    QApplication::setPalette(hostPalette(scheme));
    QApplication::processEvents();
    const QImage picture = tabs->grab().toImage();
    const auto face = [&](int at) { return picture.pixelColor(tabs->tabRect(at).topLeft() + QPoint(8, 5)); };
    EXPECT_NE(face(0), face(1)) << schemeName(scheme);
    EXPECT_EQ(face(1), face(2)) << schemeName(scheme);
  }
}

TEST_F(LookStyleTest, AListHasAFrameAndAHeaderInEveryScheme) {
  auto* table = add(new QTableWidget(2, 2), {20, 100, 300, 120});
  table->setHorizontalHeaderLabels({"Time", "Name"});
  table->verticalHeader()->hide();
  table->setShowGrid(false);
  show();
  for (const LookScheme scheme : allSchemes) {
    QApplication::setPalette(hostPalette(scheme));
    QApplication::processEvents();
    const QPalette& palette = lookPalette(scheme);
    const QColor base = palette.color(QPalette::Base);
    const QImage frame = table->grab().toImage();
    EXPECT_NE(frame.pixelColor(0, 60), base) << schemeName(scheme);
    EXPECT_EQ(frame.pixelColor(1, 60), base) << schemeName(scheme);
    const QImage heading = table->horizontalHeader()->grab().toImage();
    EXPECT_EQ(heading.pixelColor(2, 2), base) << schemeName(scheme);
    EXPECT_NE(heading.pixelColor(2, heading.height() - 1), base) << schemeName(scheme);
    EXPECT_TRUE(hasColorNear(heading, palette.color(QPalette::ButtonText))) << schemeName(scheme);
  }
}

TEST_F(LookStyleTest, AFieldCanDoWithoutRing) {
  auto* field = add(new QLineEdit, {20, 100, 80, 22});
  field->setProperty("focusRing", false);
  show();
  field->setFocus();
  const QImage picture = field->grab().toImage();
  EXPECT_EQ(picture.pixelColor(40, 0), field->palette().color(QPalette::Highlight));
  EXPECT_EQ(picture.pixelColor(40, 1), field->palette().color(QPalette::Base));
}

TEST_F(LookStyleTest, APopUpShowsItsTextUncut) {
  auto* popUp = add(new PopUpButton({"7", "14"}), {20, 100, 50, 22});
  popUp->setTitle("14");
  show();
  const QRect room(2, 3, 30, 16);
  const QRect ink = drawnOn(Qt::white, popUp->grab().toImage(), room);
  // Both digits are whole and do not overlap the tile.
  EXPECT_GE(ink.width(), popUp->fontMetrics().tightBoundingRect("14").width() - 2);
  EXPECT_LT(ink.right(), room.right());
  EXPECT_GE(ink.height(), 8);
}

TEST_F(LookStyleTest, AMenuReadsTheMarksInItsTexts) {
  QMenu menu;
  menu.setStyle(lookStyle());
  QAction* item = menu.addAction("C&opy\tCtrl+C");
  QAction* line = menu.addSeparator();
  const auto ink = [&] {
    const QImage picture = menu.grab().toImage();
    return drawnOn(picture.pixelColor(8, 8), picture, menu.actionGeometry(item).adjusted(2, 2, -2, -2));
  };
  const QRect marked = ink();
  EXPECT_LT(menu.actionGeometry(line).height(), menu.actionGeometry(item).height());
  item->setText("Copy\tCtrl+C");
  EXPECT_EQ(ink().left(), marked.left());
  EXPECT_EQ(ink().right(), marked.right());
}

TEST_F(LookStyleTest, IndicatorsFitInSixteenPoints) {
  for (const bool isRadio : {true, false}) {
    QAbstractButton* control =
        isRadio ? static_cast<QAbstractButton*>(new QRadioButton("x")) : new QCheckBox("x");
    control->setChecked(true);
    add(control, {20, 100, 60, 16});
    show();
    const QImage picture = control->grab(QRect(0, 0, 18, 16)).toImage();
    const QRect found = drawnOn(control->palette().color(QPalette::Window), picture, picture.rect());
    EXPECT_EQ(found, QRect(1, 1, 14, 14)) << control->metaObject()->className();
    delete control;
  }
}

TEST_F(LookStyleTest, ANarrowToolbarKeepsItsHeightAndOffersTheRest) {
  QToolBar* toolbar = sampleToolbar(&m_window);
  show();
  toolbar->setGeometry(0, 0, 200, toolbar->sizeHint().height());
  QApplication::processEvents();
  EXPECT_EQ(toolbar->height(), 60);
  auto* rest = toolbar->findChild<QToolButton*>("qt_toolbar_ext_button");
  ASSERT_NE(rest, nullptr);
  EXPECT_TRUE(rest->isVisible());
  EXPECT_TRUE(hasColorNear(rest->grab().toImage(), m_window.palette().color(QPalette::WindowText)));
}

TEST_F(LookStyleTest, ASpinnerTurnsOnlyWhileItIsSeen) {
  auto* spinner = add(new Spinner, {20, 100, 16, 16});
  show();
  const auto turns = [spinner] {
    const QImage before = spinner->grab().toImage();
    return QTest::qWaitFor([&] { return spinner->grab().toImage() != before; }, 250);
  };
  EXPECT_FALSE(turns());
  spinner->startAnimation();
  EXPECT_TRUE(turns());
  spinner->hide();
  EXPECT_FALSE(turns());
  spinner->show();
  EXPECT_TRUE(turns());
  spinner->stopAnimation();
  EXPECT_FALSE(turns());
}

}  // namespace
